#include "SettingsEnums.h"

using namespace Qt::Literals::StringLiterals;

namespace velto {

std::optional<Weekday> weekdayFromRawValue(qint64 raw)
{
    if (raw < rawValue(Weekday::Sunday) || raw > rawValue(Weekday::Saturday))
        return std::nullopt;
    return static_cast<Weekday>(raw);
}

QString title(SkipDifficulty difficulty)
{
    switch (difficulty) {
    case SkipDifficulty::Casual:
        return u"Flexible"_s;
    case SkipDifficulty::Balanced:
        return u"Gentle"_s;
    case SkipDifficulty::Hardcore:
        return u"Committed"_s;
    }
    return {};
}

QString title(BreakPresetKind preset)
{
    switch (preset) {
    case BreakPresetKind::Balanced:
        return u"Balanced"_s;
    case BreakPresetKind::DeepFocus:
        return u"Deep Focus"_s;
    case BreakPresetKind::EyeCare:
        return u"Eye Care"_s;
    case BreakPresetKind::Custom:
        return u"Custom"_s;
    }
    return {};
}

QString shortTitle(Weekday day)
{
    switch (day) {
    case Weekday::Sunday:
        return u"Sun"_s;
    case Weekday::Monday:
        return u"Mon"_s;
    case Weekday::Tuesday:
        return u"Tue"_s;
    case Weekday::Wednesday:
        return u"Wed"_s;
    case Weekday::Thursday:
        return u"Thu"_s;
    case Weekday::Friday:
        return u"Fri"_s;
    case Weekday::Saturday:
        return u"Sat"_s;
    }
    return {};
}

QString rowTitle(DeepFocusMode mode)
{
    switch (mode) {
    case DeepFocusMode::WhenForegroundFullscreen:
        return u"Foreground & Fullscreen"_s;
    case DeepFocusMode::WhenForeground:
        return u"In Foreground"_s;
    case DeepFocusMode::WhenOpen:
        return u"When Open"_s;
    }
    return {};
}

QString sheetTitle(DeepFocusMode mode)
{
    switch (mode) {
    case DeepFocusMode::WhenForegroundFullscreen:
        return u"When in Foreground & Fullscreen"_s;
    case DeepFocusMode::WhenForeground:
        return u"When in Foreground"_s;
    case DeepFocusMode::WhenOpen:
        return u"When Open"_s;
    }
    return {};
}

QString title(VideoDetectionMode mode)
{
    switch (mode) {
    case VideoDetectionMode::FrontmostOnly:
        return u"Frontmost only"_s;
    case VideoDetectionMode::IncludeBackground:
        return u"Running in background too"_s;
    }
    return {};
}

QString title(BackgroundType type)
{
    switch (type) {
    case BackgroundType::PaperLight:
        return u"Paper Light"_s;
    case BackgroundType::Gradient:
        return u"Gradient"_s;
    case BackgroundType::PaperDark:
        return u"Paper Dark"_s;
    case BackgroundType::SolidColor:
        return u"Solid Color"_s;
    case BackgroundType::CustomImage:
        return u"Custom Image"_s;
    case BackgroundType::SystemWallpaper:
        return u"System Wallpaper"_s;
    }
    return {};
}

QString title(GradientTheme theme)
{
    // The titles are the enumerator names, which is what the Appearance pane shows.
    return QString::fromLatin1(QMetaEnum::fromType<GradientTheme>().valueToKey(static_cast<int>(theme)));
}

QString title(ScreenDisplayMode mode)
{
    switch (mode) {
    case ScreenDisplayMode::AllScreens:
        return u"All Screens"_s;
    case ScreenDisplayMode::MainScreenOnly:
        return u"Main Screen Only"_s;
    }
    return {};
}

} // namespace velto
