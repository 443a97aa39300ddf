#include "BreakViewModel.h"

#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPalette>
#include <QRandomGenerator>
#include <QTimer>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace velto {

namespace {

// The grey of text on light backgrounds.
constexpr double inkGrey = 0.18;

QColor grey(double level, double alpha = 1.0)
{
    return QColor::fromRgbF(float(level), float(level), float(level), float(alpha));
}

QList<CodableColor> paperColors(BackgroundType type)
{
    if (type == BackgroundType::PaperDark)
        return {{0.10, 0.10, 0.12, 1}, {0.06, 0.06, 0.08, 1}, {0.03, 0.03, 0.05, 1}};
    return {{0.97, 0.95, 0.91, 1}, {0.95, 0.93, 0.89, 1}, {0.92, 0.90, 0.85, 1}};
}

} // namespace

QColor toColor(const CodableColor& color)
{
    return QColor::fromRgbF(float(color.red), float(color.green), float(color.blue), float(color.opacity));
}

// In English here, in the user's language on screen: chooseMessage translates the one it picks.
const QStringList BreakViewModel::shortBreakFallbackMessages = {
    //: A playful line on the screen of a short break, for a user without messages of their own; adapt freely.
    QString::fromUtf8(QT_TRANSLATE_NOOP("BreakMessage", "Look away, not at your phone")),
    //: A joke on "… called, they want their … back": the eyes ask for rest.
    QString::fromUtf8(QT_TRANSLATE_NOOP("BreakMessage", "Your retinas called")),
    //: Playful: tired eyes making a whirring noise.
    QString::fromUtf8(QT_TRANSLATE_NOOP("BreakMessage", "Eyes go brrrr")),
    QString::fromUtf8(QT_TRANSLATE_NOOP("BreakMessage", "Let's not make deals with our vision")),
    QString::fromUtf8(QT_TRANSLATE_NOOP("BreakMessage", "Stare into the distance like a poet")),
};

const QStringList BreakViewModel::longBreakFallbackMessages = {
    //: A playful line on the screen of a long break, for a user without messages of their own; adapt freely.
    QString::fromUtf8(QT_TRANSLATE_NOOP("BreakMessage", "Your desk chair is judging you")),
    QString::fromUtf8(QT_TRANSLATE_NOOP("BreakMessage", "The floor is waiting")),
    QString::fromUtf8(QT_TRANSLATE_NOOP("BreakMessage", "Gravity wants to see you stretch")),
    QString::fromUtf8(QT_TRANSLATE_NOOP("BreakMessage", "Adventure awaits (in your living room)")),
    //: "Touch grass": go outside, away from the screen.
    QString::fromUtf8(QT_TRANSLATE_NOOP("BreakMessage", "Time to touch grass (literally)")),
};

BreakViewModel::BreakViewModel(SettingsManager* settings, BreakManager* breakManager, BreakType breakType,
                               QUrl imageSource, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_breakManager(breakManager)
    , m_breakType(breakType)
    , m_imageSource(std::move(imageSource))
{
    m_message = chooseMessage(settings ? settings->breakAppearance().customMessages : QStringList(), breakType);
    if (settings) {
        connect(settings, &SettingsManager::breakAppearanceChanged, this, &BreakViewModel::appearanceChanged);
        connect(settings, &SettingsManager::breakConfigurationChanged, this, &BreakViewModel::breakTimeChanged);
        connect(settings, &SettingsManager::breakConfigurationChanged, this, &BreakViewModel::skipChanged);
    }
    if (breakManager) {
        connect(breakManager, &BreakManager::breakTimeRemainingChanged, this, &BreakViewModel::breakTimeChanged);
        connect(breakManager, &BreakManager::stateChanged, this, &BreakViewModel::breakTimeChanged);
    }
}

QString BreakViewModel::chooseMessage(const QStringList& customMessages, BreakType breakType)
{
    auto pick = [](const QStringList& pool) {
        return pool.at(int(QRandomGenerator::global()->bounded(qsizetype(pool.size()))));
    };
    // The user's own messages are shown as written.
    if (!customMessages.isEmpty())
        return pick(customMessages);
    const QString message = pick(breakType == BreakType::Long ? longBreakFallbackMessages : shortBreakFallbackMessages);
    return QCoreApplication::translate("BreakMessage", message.toUtf8().constData());
}

QString BreakViewModel::roundedFontFamily()
{
    static const QString family = [] {
        const QStringList installed = QFontDatabase::families();
        for (const QString& candidate :
             {u"Nunito"_s, u"Varela Round"_s, u"M PLUS Rounded 1c"_s, u"Comfortaa"_s, u"Quicksand"_s, u"Ubuntu"_s}) {
            if (installed.contains(candidate))
                return candidate;
        }
        return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    }();
    return family;
}

QString BreakViewModel::caption() const
{
    if (m_breakType == BreakType::Long)
        //: The small caption above the countdown of a long break, shown in capitals.
        return tr("Your body misses you");
    //: The small caption above the countdown of a short break, shown in capitals.
    return tr("Your eyes need you");
}

QString BreakViewModel::fontFamily() const
{
    return roundedFontFamily();
}

BreakViewModel::Background BreakViewModel::background() const
{
    if (!m_settings)
        return Background::Gradient;
    switch (m_settings->breakAppearance().backgroundType) {
    case BackgroundType::SolidColor:
        return Background::Solid;
    case BackgroundType::CustomImage:
    case BackgroundType::SystemWallpaper:
        return m_imageSource.isEmpty() ? Background::Gradient : Background::Image;
    case BackgroundType::PaperLight:
    case BackgroundType::PaperDark:
    case BackgroundType::Gradient:
        break;
    }
    return Background::Gradient;
}

QVariantList BreakViewModel::gradientStops() const
{
    const BreakAppearance appearance = m_settings ? m_settings->breakAppearance() : BreakAppearance();
    const QList<CodableColor> colors = appearance.backgroundType == BackgroundType::PaperLight ||
                                               appearance.backgroundType == BackgroundType::PaperDark
                                           ? paperColors(appearance.backgroundType)
                                           : velto::gradientColors(appearance.gradientTheme);
    QVariantList stops;
    for (const CodableColor& color : colors)
        stops.append(toColor(color));
    return stops;
}

QColor BreakViewModel::solidColor() const
{
    return m_settings ? toColor(m_settings->breakAppearance().backgroundColor) : QColor(Qt::black);
}

double BreakViewModel::dimOpacity() const
{
    const double opacity = m_settings ? m_settings->breakAppearance().overlayOpacity : 1.0;
    const double dim = 1.0 - opacity;
    return std::isnan(dim) ? 0.0 : std::clamp(dim, 0.0, 1.0);
}

bool BreakViewModel::isDarkBackground() const
{
    if (!m_settings)
        return false;
    const BackgroundType type = m_settings->breakAppearance().backgroundType;
    return type == BackgroundType::Gradient || type == BackgroundType::PaperDark;
}

QColor BreakViewModel::inkColor() const
{
    return isDarkBackground() ? QColor(Qt::white) : grey(inkGrey);
}

QColor BreakViewModel::controlColor() const
{
    return isDarkBackground() ? QColor(Qt::white) : QColor(Qt::black);
}

QColor BreakViewModel::accentColor() const
{
    if (m_settings && m_settings->breakAppearance().backgroundType == BackgroundType::Gradient)
        return toColor(velto::accentColor(m_settings->breakAppearance().gradientTheme));
    // Qt 6.4 has no accent role; the selection colour is the closest the desktop offers.
    return QGuiApplication::palette().color(QPalette::Active, QPalette::Highlight);
}

QString BreakViewModel::timeText() const
{
    return m_breakManager ? m_breakManager->formattedBreakTimeRemaining() : QString();
}

double BreakViewModel::breakDuration() const
{
    if (!m_settings)
        return 0;
    const BreakConfiguration& configuration = m_settings->breakConfiguration();
    return m_breakType == BreakType::Long ? configuration.longBreakDuration : configuration.shortBreakDuration;
}

double BreakViewModel::progress() const
{
    if (!m_breakManager)
        return 0;
    const double value = 1.0 - m_breakManager->breakTimeRemaining() / breakDuration();
    // A zero-length break would divide by zero; the ring then stays empty rather than drawing garbage.
    return std::isfinite(value) ? std::clamp(value, 0.0, 1.0) : 0.0;
}

bool BreakViewModel::endBreakPresent() const
{
    if (!m_settings || !m_breakManager)
        return false;
    return m_settings->breakConfiguration().allowEarlyEnd &&
           m_breakManager->breakTimeRemaining() <= breakDuration() * 0.5;
}

bool BreakViewModel::skipPresent() const
{
    if (!m_settings)
        return false;
    const BreakConfiguration& configuration = m_settings->breakConfiguration();
    return configuration.allowEarlyEnd || configuration.skipDifficulty != SkipDifficulty::Hardcore;
}

bool BreakViewModel::skipUsable() const
{
    return skipPresent() && (m_settings->breakConfiguration().allowEarlyEnd || m_canSkip);
}

void BreakViewModel::start()
{
    if (m_started || !m_settings)
        return;
    m_started = true;
    switch (m_settings->breakConfiguration().skipDifficulty) {
    case SkipDifficulty::Casual:
        setCanSkip(true);
        break;
    case SkipDifficulty::Balanced:
        if (m_delayedAction)
            m_delayedAction(2.0, this, [this] { setCanSkip(true); });
        else
            // Precise: a coarse timer may fire up to 5 % early, before the two seconds are up.
            QTimer::singleShot(2000, Qt::PreciseTimer, this, [this] { setCanSkip(true); });
        break;
    case SkipDifficulty::Hardcore:
        break;
    }
}

void BreakViewModel::skip()
{
    if (skipUsable() && m_breakManager)
        m_breakManager->skipBreak();
}

void BreakViewModel::endBreak()
{
    if (m_breakManager && m_breakManager->canEndBreakEarly())
        m_breakManager->endBreak(true);
}

void BreakViewModel::setCanSkip(bool value)
{
    if (m_canSkip == value)
        return;
    m_canSkip = value;
    Q_EMIT skipChanged();
}

} // namespace velto
