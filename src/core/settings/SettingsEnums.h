#pragma once

#include <QList>
#include <QMetaEnum>
#include <QObject>
#include <QString>

#include <optional>

namespace velto {
Q_NAMESPACE

// Enumerators are capitalised so QML can name them; each persists as its raw value, the enumerator
// name with a lower-case first letter ("DeepFocus" is stored as "deepFocus"). Weekday persists as its number.

enum class BreakType { Short, Long };
Q_ENUM_NS(BreakType)

enum class SkipDifficulty { Casual, Balanced, Hardcore };
Q_ENUM_NS(SkipDifficulty)

enum class BreakPresetKind { Balanced, DeepFocus, EyeCare, Custom };
Q_ENUM_NS(BreakPresetKind)

// Numbered Sunday first, as calendars in most locales count weekdays.
enum class Weekday { Sunday = 1, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday };
Q_ENUM_NS(Weekday)

enum class DeepFocusMode { WhenForegroundFullscreen, WhenForeground, WhenOpen };
Q_ENUM_NS(DeepFocusMode)

enum class VideoDetectionMode { FrontmostOnly, IncludeBackground };
Q_ENUM_NS(VideoDetectionMode)

enum class BackgroundType { PaperLight, Gradient, PaperDark, SolidColor, CustomImage, SystemWallpaper };
Q_ENUM_NS(BackgroundType)

enum class GradientTheme { Midnight, Aurora, Ocean, Sunset, Forest, Cosmos, Minimal, Rose, Warmth, Slate, Lavender };
Q_ENUM_NS(GradientTheme)

enum class ScreenDisplayMode { AllScreens, MainScreenOnly };
Q_ENUM_NS(ScreenDisplayMode)

// Every case of an enumeration, in declaration order.
template <typename E>
[[nodiscard]] QList<E> allCases()
{
    const QMetaEnum meta = QMetaEnum::fromType<E>();
    QList<E> cases;
    cases.reserve(meta.keyCount());
    for (int i = 0; i < meta.keyCount(); ++i)
        cases.append(static_cast<E>(meta.value(i)));
    return cases;
}

template <typename E>
[[nodiscard]] QString rawValue(E value)
{
    const char* key = QMetaEnum::fromType<E>().valueToKey(static_cast<int>(value));
    if (key == nullptr)
        return {};
    QString raw = QString::fromLatin1(key);
    raw[0] = raw[0].toLower();
    return raw;
}

// Case-sensitive: "Balanced" is not a raw value, "balanced" is.
template <typename E>
[[nodiscard]] std::optional<E> fromRawValue(QStringView raw)
{
    for (const E value : allCases<E>()) {
        if (rawValue(value) == raw)
            return value;
    }
    return std::nullopt;
}

[[nodiscard]] inline int rawValue(Weekday day)
{
    return static_cast<int>(day);
}
[[nodiscard]] std::optional<Weekday> weekdayFromRawValue(qint64 raw);

[[nodiscard]] QString title(SkipDifficulty difficulty);
[[nodiscard]] QString title(BreakPresetKind preset);
[[nodiscard]] QString shortTitle(Weekday day);
// A focus-app row and the add-app sheet word the same mode differently.
[[nodiscard]] QString rowTitle(DeepFocusMode mode);
[[nodiscard]] QString sheetTitle(DeepFocusMode mode);
[[nodiscard]] QString title(VideoDetectionMode mode);
[[nodiscard]] QString title(BackgroundType type);
[[nodiscard]] QString title(GradientTheme theme);
[[nodiscard]] QString title(ScreenDisplayMode mode);

} // namespace velto
