#include "SettingsEnums.h"

#include <QCoreApplication>

#include <array>

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
        return QCoreApplication::translate("SkipDifficulty", "Flexible");
    case SkipDifficulty::Balanced:
        return QCoreApplication::translate("SkipDifficulty", "Gentle");
    case SkipDifficulty::Hardcore:
        return QCoreApplication::translate("SkipDifficulty", "Committed");
    }
    return {};
}

QString title(BreakPresetKind preset)
{
    switch (preset) {
    case BreakPresetKind::Balanced:
        return QCoreApplication::translate("BreakPreset", "Balanced");
    case BreakPresetKind::DeepFocus:
        return QCoreApplication::translate("BreakPreset", "Deep Focus");
    case BreakPresetKind::EyeCare:
        return QCoreApplication::translate("BreakPreset", "Eye Care");
    case BreakPresetKind::Custom:
        return QCoreApplication::translate("BreakPreset", "Custom");
    }
    return {};
}

QString shortTitle(Weekday day)
{
    switch (day) {
    case Weekday::Sunday:
        return QCoreApplication::translate("Weekday", "Sun");
    case Weekday::Monday:
        return QCoreApplication::translate("Weekday", "Mon");
    case Weekday::Tuesday:
        return QCoreApplication::translate("Weekday", "Tue");
    case Weekday::Wednesday:
        return QCoreApplication::translate("Weekday", "Wed");
    case Weekday::Thursday:
        return QCoreApplication::translate("Weekday", "Thu");
    case Weekday::Friday:
        return QCoreApplication::translate("Weekday", "Fri");
    case Weekday::Saturday:
        return QCoreApplication::translate("Weekday", "Sat");
    }
    return {};
}

QString rowTitle(DeepFocusMode mode)
{
    switch (mode) {
    case DeepFocusMode::WhenForegroundFullscreen:
        //: A focus app's picker beside its name: it holds breaks while in front and fullscreen.
        return QCoreApplication::translate("FocusAppMode", "Foreground & Fullscreen");
    case DeepFocusMode::WhenForeground:
        //: A focus app's picker beside its name: it holds breaks while in front.
        return QCoreApplication::translate("FocusAppMode", "In Foreground");
    case DeepFocusMode::WhenOpen:
        //: A focus app's picker beside its name: it holds breaks while it runs.
        return QCoreApplication::translate("FocusAppMode", "When Open");
    }
    return {};
}

QString sheetTitle(DeepFocusMode mode)
{
    switch (mode) {
    case DeepFocusMode::WhenForegroundFullscreen:
        //: When a focus app being added holds breaks: while in front and fullscreen.
        return QCoreApplication::translate("FocusAppMode", "When in Foreground & Fullscreen");
    case DeepFocusMode::WhenForeground:
        //: When a focus app being added holds breaks: while in front.
        return QCoreApplication::translate("FocusAppMode", "When in Foreground");
    case DeepFocusMode::WhenOpen:
        //: When a focus app being added holds breaks: while it runs.
        return QCoreApplication::translate("FocusAppMode", "When Open");
    }
    return {};
}

QString title(VideoDetectionMode mode)
{
    switch (mode) {
    case VideoDetectionMode::FrontmostOnly:
        //: Which video players are asked whether they play: only the one in front.
        return QCoreApplication::translate("VideoDetection", "Frontmost only");
    case VideoDetectionMode::IncludeBackground:
        return QCoreApplication::translate("VideoDetection", "Running in background too");
    }
    return {};
}

QString title(BackgroundType type)
{
    switch (type) {
    case BackgroundType::PaperLight:
        return QCoreApplication::translate("BreakBackground", "Paper Light");
    case BackgroundType::Gradient:
        return QCoreApplication::translate("BreakBackground", "Gradient");
    case BackgroundType::PaperDark:
        return QCoreApplication::translate("BreakBackground", "Paper Dark");
    case BackgroundType::SolidColor:
        return QCoreApplication::translate("BreakBackground", "Solid Color");
    case BackgroundType::CustomImage:
        return QCoreApplication::translate("BreakBackground", "Custom Image");
    case BackgroundType::SystemWallpaper:
        return QCoreApplication::translate("BreakBackground", "System Wallpaper");
    }
    return {};
}

QString title(GradientTheme theme)
{
    // In declaration order; the titles are the enumerator names.
    static constexpr std::array titles = {
        QT_TRANSLATE_NOOP("GradientTheme", "Midnight"), QT_TRANSLATE_NOOP("GradientTheme", "Aurora"),
        QT_TRANSLATE_NOOP("GradientTheme", "Ocean"),    QT_TRANSLATE_NOOP("GradientTheme", "Sunset"),
        QT_TRANSLATE_NOOP("GradientTheme", "Forest"),   QT_TRANSLATE_NOOP("GradientTheme", "Cosmos"),
        QT_TRANSLATE_NOOP("GradientTheme", "Minimal"),  QT_TRANSLATE_NOOP("GradientTheme", "Rose"),
        QT_TRANSLATE_NOOP("GradientTheme", "Warmth"),   QT_TRANSLATE_NOOP("GradientTheme", "Slate"),
        QT_TRANSLATE_NOOP("GradientTheme", "Lavender"),
    };
    static_assert(titles.size() == static_cast<std::size_t>(GradientTheme::Lavender) + 1);
    const auto index = static_cast<std::size_t>(theme);
    return index < titles.size() ? QCoreApplication::translate("GradientTheme", titles[index]) : QString();
}

QString title(ScreenDisplayMode mode)
{
    switch (mode) {
    case ScreenDisplayMode::AllScreens:
        return QCoreApplication::translate("BreakScreens", "All Screens");
    case ScreenDisplayMode::MainScreenOnly:
        return QCoreApplication::translate("BreakScreens", "Main Screen Only");
    }
    return {};
}

} // namespace velto
