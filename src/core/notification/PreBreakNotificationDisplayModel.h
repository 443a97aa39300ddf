#pragma once

#include "settings/SettingsEnums.h"

#include <QObject>
#include <QString>

namespace velto {

// What one pre-break card shows: the coming break, fixed for the card's life, and the seconds left until it,
// which the manager keeps current while the card is up. Observable, so the card's countdown follows it.
// Main thread.
class PreBreakNotificationDisplayModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(velto::BreakType breakType READ breakType CONSTANT)
    Q_PROPERTY(double timeRemaining READ timeRemaining NOTIFY timeRemainingChanged)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString message READ message CONSTANT)
    Q_PROPERTY(QString countdownText READ countdownText NOTIFY timeRemainingChanged)
    Q_PROPERTY(QString countdownSpokenLabel READ countdownSpokenLabel NOTIFY timeRemainingChanged)

public:
    PreBreakNotificationDisplayModel(BreakType breakType, double timeRemaining, QObject* parent = nullptr);

    [[nodiscard]] BreakType breakType() const { return m_breakType; }
    [[nodiscard]] double timeRemaining() const { return m_timeRemaining; }
    void setTimeRemaining(double value);

    [[nodiscard]] QString title() const { return titleFor(m_breakType); }
    [[nodiscard]] QString message() const { return messageFor(m_breakType); }
    [[nodiscard]] QString countdownText() const { return countdownTextFor(m_timeRemaining); }
    [[nodiscard]] QString countdownSpokenLabel() const { return countdownSpokenLabelFor(m_timeRemaining); }

    [[nodiscard]] static QString titleFor(BreakType breakType);
    [[nodiscard]] static QString messageFor(BreakType breakType);
    // Whole seconds, never below zero, as minutes and two-digit seconds even under a minute: "0:59", "2:05".
    [[nodiscard]] static QString countdownTextFor(double seconds);
    // The same time for a screen reader: "Break in 2 minutes 5 seconds", "Break in 1 second".
    [[nodiscard]] static QString countdownSpokenLabelFor(double seconds);

Q_SIGNALS:
    void objectWillChange();
    void timeRemainingChanged(double timeRemaining);

private:
    const BreakType m_breakType;
    double m_timeRemaining = 0;
};

} // namespace velto
