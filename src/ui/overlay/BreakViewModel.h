#pragma once

#include "settings/SettingsEnums.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QVariantList>
#include <QtQmlIntegration>

#include <functional>

namespace velto {

class BreakManager;
class SettingsManager;
struct CodableColor;

[[nodiscard]] QColor toColor(const CodableColor& color);

// What one break screen shows and may do, read live from the settings store and the scheduler. Each overlay
// window has its own, so two screens may show different messages. Main thread.
class BreakViewModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by BreakWindow for each overlay window")
    Q_PROPERTY(QString caption READ caption CONSTANT)
    Q_PROPERTY(QString message READ message CONSTANT)
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)
    Q_PROPERTY(velto::BreakViewModel::Background background READ background NOTIFY appearanceChanged)
    Q_PROPERTY(bool showsImage READ showsImage NOTIFY appearanceChanged)
    Q_PROPERTY(bool showsSolidColor READ showsSolidColor NOTIFY appearanceChanged)
    Q_PROPERTY(QVariantList gradientStops READ gradientStops NOTIFY appearanceChanged)
    Q_PROPERTY(QColor solidColor READ solidColor NOTIFY appearanceChanged)
    Q_PROPERTY(QUrl imageSource READ imageSource NOTIFY appearanceChanged)
    Q_PROPERTY(double dimOpacity READ dimOpacity NOTIFY appearanceChanged)
    Q_PROPERTY(bool isDarkBackground READ isDarkBackground NOTIFY appearanceChanged)
    Q_PROPERTY(QColor inkColor READ inkColor NOTIFY appearanceChanged)
    Q_PROPERTY(QColor controlColor READ controlColor NOTIFY appearanceChanged)
    Q_PROPERTY(QColor accentColor READ accentColor NOTIFY appearanceChanged)
    Q_PROPERTY(QString timeText READ timeText NOTIFY breakTimeChanged)
    Q_PROPERTY(double progress READ progress NOTIFY breakTimeChanged)
    Q_PROPERTY(bool endBreakPresent READ endBreakPresent NOTIFY breakTimeChanged)
    Q_PROPERTY(bool skipPresent READ skipPresent NOTIFY skipChanged)
    Q_PROPERTY(bool skipUsable READ skipUsable NOTIFY skipChanged)

public:
    // How the background is drawn; an image that could not be read is drawn as its theme's gradient.
    enum class Background { Gradient, Solid, Image };
    Q_ENUM(Background)

    // imageSource is where the view finds the already decoded picture of a customImage or systemWallpaper
    // background; an empty URL means there is none and the theme gradient stands in.
    BreakViewModel(SettingsManager* settings, BreakManager* breakManager, BreakType breakType, QUrl imageSource = {},
                   QObject* parent = nullptr);

    // Runs an action once after a delay in seconds, unless context is gone by then; by default a precise timer.
    using DelayedAction = std::function<void(double seconds, QObject* context, std::function<void()> action)>;
    // For the balanced Skip delay; tests hand in their own clock.
    void setDelayedAction(DelayedAction delayedAction) { m_delayedAction = std::move(delayedAction); }

    // Untranslated; chooseMessage returns a fallback message in the user's language.
    static const QStringList shortBreakFallbackMessages;
    static const QStringList longBreakFallbackMessages;
    // One of the custom messages, or of the break type's own when the user has none; uniformly at random.
    [[nodiscard]] static QString chooseMessage(const QStringList& customMessages, BreakType breakType);
    // A rounded family when the system has one, else the general font's.
    [[nodiscard]] static QString roundedFontFamily();

    [[nodiscard]] BreakType breakType() const { return m_breakType; }
    [[nodiscard]] QString caption() const;
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] QString fontFamily() const;
    [[nodiscard]] Background background() const;
    [[nodiscard]] bool showsImage() const { return background() == Background::Image; }
    [[nodiscard]] bool showsSolidColor() const { return background() == Background::Solid; }
    [[nodiscard]] QVariantList gradientStops() const;
    [[nodiscard]] QColor solidColor() const;
    [[nodiscard]] QUrl imageSource() const { return m_imageSource; }
    [[nodiscard]] double dimOpacity() const;
    [[nodiscard]] bool isDarkBackground() const;
    [[nodiscard]] QColor inkColor() const;
    [[nodiscard]] QColor controlColor() const;
    [[nodiscard]] QColor accentColor() const;
    [[nodiscard]] QString timeText() const;
    [[nodiscard]] double breakDuration() const;
    [[nodiscard]] double progress() const;
    [[nodiscard]] bool endBreakPresent() const;
    [[nodiscard]] bool skipPresent() const;
    [[nodiscard]] bool skipUsable() const;

    // The screen is up: the skip rule of the break's difficulty starts now. Later calls do nothing.
    void start();

    Q_INVOKABLE void skip();
    Q_INVOKABLE void endBreak();

Q_SIGNALS:
    void appearanceChanged();
    void breakTimeChanged();
    void skipChanged();

private:
    void setCanSkip(bool value);

    QPointer<SettingsManager> m_settings;
    QPointer<BreakManager> m_breakManager;
    BreakType m_breakType;
    QUrl m_imageSource;
    QString m_message;
    bool m_canSkip = false;
    bool m_started = false;
    DelayedAction m_delayedAction;
};

} // namespace velto
