#pragma once

#include "detection/ActivityDetecting.h"

#include <QObject>

// A detector whose answer the test sets, counting how often the scheduler asks.
class FakeActivityDetector final : public QObject, public velto::ActivityDetecting {
    Q_OBJECT
    Q_INTERFACES(velto::ActivityDetecting)

public:
    // Says what it sees changes; the change itself is the test's.
    void announceChange() { Q_EMIT objectWillChange(); }

    [[nodiscard]] bool isActivityDetected() const override
    {
        ++queries;
        return active;
    }
    [[nodiscard]] QString activityStatusText() const override { return statusText; }
    [[nodiscard]] QString activityStatusSymbolName() const override { return symbolName; }
    [[nodiscard]] QString activityKind() const override { return kind; }

    bool active = false;
    QString statusText;
    QString symbolName;
    QString kind;
    mutable int queries = 0;

Q_SIGNALS:
    void objectWillChange();
};
