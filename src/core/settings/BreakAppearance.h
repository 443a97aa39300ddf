#pragma once

#include "SettingsEnums.h"

#include <QJsonObject>
#include <QList>
#include <QStringList>

#include <optional>

namespace velto {

// An sRGB colour with opacity, each component 0 to 1. The UI converts it to and from its own colour type.
struct CodableColor {
    Q_GADGET
    Q_PROPERTY(double red MEMBER red)
    Q_PROPERTY(double green MEMBER green)
    Q_PROPERTY(double blue MEMBER blue)
    Q_PROPERTY(double opacity MEMBER opacity)

public:
    double red = 0;
    double green = 0;
    double blue = 0;
    double opacity = 1;

    friend bool operator==(const CodableColor&, const CodableColor&) = default;

    [[nodiscard]] QJsonObject toJson() const;
    [[nodiscard]] static std::optional<CodableColor> fromJson(const QJsonObject& object);
};

// The colour stops of a theme's gradient, in gradient order; all opaque and dark.
[[nodiscard]] QList<CodableColor> gradientColors(GradientTheme theme);
[[nodiscard]] CodableColor accentColor(GradientTheme theme);

// What the break screen looks like and which screens it covers.
struct BreakAppearance {
    Q_GADGET
    Q_PROPERTY(velto::BackgroundType backgroundType MEMBER backgroundType)
    Q_PROPERTY(velto::CodableColor backgroundColor MEMBER backgroundColor)
    Q_PROPERTY(velto::GradientTheme gradientTheme MEMBER gradientTheme)
    Q_PROPERTY(QString customImagePath READ customImagePathOrEmpty)
    Q_PROPERTY(double overlayOpacity MEMBER overlayOpacity)
    Q_PROPERTY(velto::ScreenDisplayMode screenDisplayMode MEMBER screenDisplayMode)
    Q_PROPERTY(QStringList customMessages MEMBER customMessages)

public:
    BackgroundType backgroundType = BackgroundType::PaperLight;
    CodableColor backgroundColor{0, 0, 0, 0.85};
    // Also what the break screen falls back to when an image cannot be shown.
    GradientTheme gradientTheme = GradientTheme::Midnight;
    std::optional<QString> customImagePath;
    // The break screen lays black at 1 - overlayOpacity over the background.
    double overlayOpacity = 0.9;
    ScreenDisplayMode screenDisplayMode = ScreenDisplayMode::AllScreens;
    QStringList customMessages = defaultMessages();

    [[nodiscard]] static QStringList defaultMessages();
    [[nodiscard]] QString customImagePathOrEmpty() const { return customImagePath.value_or(QString()); }

    friend bool operator==(const BreakAppearance&, const BreakAppearance&) = default;

    // Leaves "customImagePath" out when there is none.
    [[nodiscard]] QJsonObject toJson() const;
    [[nodiscard]] static std::optional<BreakAppearance> fromJson(const QJsonObject& object);
};

} // namespace velto
