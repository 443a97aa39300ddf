#include "BreakAppearance.h"

#include "JsonRecord.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

constexpr CodableColor rgb(double red, double green, double blue)
{
    return {red, green, blue, 1.0};
}

} // namespace

QJsonObject CodableColor::toJson() const
{
    return {{u"red"_s, red}, {u"green"_s, green}, {u"blue"_s, blue}, {u"opacity"_s, opacity}};
}

std::optional<CodableColor> CodableColor::fromJson(const QJsonObject& object)
{
    JsonReader reader(object);
    CodableColor color;
    color.red = reader.number(u"red");
    color.green = reader.number(u"green");
    color.blue = reader.number(u"blue");
    color.opacity = reader.number(u"opacity");
    if (!reader.ok())
        return std::nullopt;
    return color;
}

QList<CodableColor> gradientColors(GradientTheme theme)
{
    switch (theme) {
    case GradientTheme::Midnight:
        return {rgb(0.05, 0.05, 0.15), rgb(0.08, 0.06, 0.22), rgb(0.12, 0.08, 0.28)};
    case GradientTheme::Aurora:
        return {rgb(0.04, 0.08, 0.16), rgb(0.06, 0.18, 0.28), rgb(0.08, 0.24, 0.32), rgb(0.15, 0.12, 0.30)};
    case GradientTheme::Ocean:
        return {rgb(0.02, 0.06, 0.14), rgb(0.04, 0.12, 0.24), rgb(0.06, 0.18, 0.30)};
    case GradientTheme::Sunset:
        return {rgb(0.16, 0.06, 0.18), rgb(0.24, 0.08, 0.16), rgb(0.18, 0.04, 0.22)};
    case GradientTheme::Forest:
        return {rgb(0.04, 0.10, 0.10), rgb(0.06, 0.16, 0.14), rgb(0.08, 0.12, 0.18)};
    case GradientTheme::Cosmos:
        return {rgb(0.02, 0.02, 0.08), rgb(0.06, 0.04, 0.14), rgb(0.10, 0.06, 0.20), rgb(0.04, 0.08, 0.16)};
    case GradientTheme::Minimal:
        return {rgb(0.08, 0.08, 0.10), rgb(0.12, 0.12, 0.14), rgb(0.10, 0.10, 0.12)};
    case GradientTheme::Rose:
        return {rgb(0.14, 0.06, 0.12), rgb(0.18, 0.08, 0.18), rgb(0.12, 0.06, 0.20)};
    case GradientTheme::Warmth:
        return {rgb(0.20, 0.04, 0.07), rgb(0.32, 0.07, 0.11), rgb(0.44, 0.10, 0.15)};
    case GradientTheme::Slate:
        return {rgb(0.08, 0.10, 0.14), rgb(0.12, 0.14, 0.18), rgb(0.10, 0.12, 0.16)};
    case GradientTheme::Lavender:
        return {rgb(0.10, 0.06, 0.16), rgb(0.14, 0.08, 0.22), rgb(0.12, 0.10, 0.20)};
    }
    return {};
}

CodableColor accentColor(GradientTheme theme)
{
    switch (theme) {
    case GradientTheme::Midnight:
        return rgb(0.4, 0.5, 0.9);
    case GradientTheme::Aurora:
        return rgb(0.3, 0.8, 0.7);
    case GradientTheme::Ocean:
        return rgb(0.3, 0.6, 0.9);
    case GradientTheme::Sunset:
        return rgb(0.95, 0.6, 0.45);
    case GradientTheme::Forest:
        return rgb(0.4, 0.8, 0.6);
    case GradientTheme::Cosmos:
        return rgb(0.7, 0.5, 0.9);
    case GradientTheme::Minimal:
        return rgb(0.7, 0.7, 0.7);
    case GradientTheme::Rose:
        return rgb(0.9, 0.5, 0.7);
    case GradientTheme::Warmth:
        return rgb(221.0 / 255.0, 45.0 / 255.0, 74.0 / 255.0);
    case GradientTheme::Slate:
        return rgb(0.55, 0.62, 0.72);
    case GradientTheme::Lavender:
        return rgb(0.75, 0.65, 0.92);
    }
    return {};
}

QStringList BreakAppearance::defaultMessages()
{
    // In the user's language when the record is made; from then on they are the user's own texts, kept as stored.
    return {
        QCoreApplication::translate("BreakMessage", "Rest your eyes and take a deep breath"),
        QCoreApplication::translate("BreakMessage", "Look at something 20 feet away"),
        QCoreApplication::translate("BreakMessage", "Blink slowly and relax your eyes"),
        QCoreApplication::translate("BreakMessage", "Stretch your shoulders and neck"),
        QCoreApplication::translate("BreakMessage", "You're doing great! Keep up the healthy habits"),
    };
}

QJsonObject BreakAppearance::toJson() const
{
    QJsonObject object{
        {u"backgroundType"_s, rawValue(backgroundType)},
        {u"backgroundColor"_s, backgroundColor.toJson()},
        {u"gradientTheme"_s, rawValue(gradientTheme)},
        {u"overlayOpacity"_s, overlayOpacity},
        {u"screenDisplayMode"_s, rawValue(screenDisplayMode)},
        {u"customMessages"_s, QJsonArray::fromStringList(customMessages)},
    };
    if (customImagePath)
        object.insert(u"customImagePath"_s, *customImagePath);
    return object;
}

std::optional<BreakAppearance> BreakAppearance::fromJson(const QJsonObject& object)
{
    JsonReader reader(object);
    BreakAppearance a;
    a.backgroundType = reader.enumeration(u"backgroundType", a.backgroundType);
    const std::optional<CodableColor> color = CodableColor::fromJson(reader.object(u"backgroundColor"));
    a.gradientTheme = reader.enumeration(u"gradientTheme", a.gradientTheme);
    a.customImagePath = reader.optionalString(u"customImagePath");
    a.overlayOpacity = reader.number(u"overlayOpacity");
    a.screenDisplayMode = reader.enumeration(u"screenDisplayMode", a.screenDisplayMode);
    a.customMessages = reader.stringList(u"customMessages");
    if (!reader.ok() || !color)
        return std::nullopt;
    a.backgroundColor = *color;
    return a;
}

} // namespace velto
