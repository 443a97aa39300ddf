#pragma once

#include "detection/ActivityDetecting.h"

#include <QObject>

// A detector whose answer the test sets, counting how often the scheduler asks.
class FakeActivityDetector final : public QObject, public velto::ActivityDetecting {
    Q_OBJECT
    Q_INTERFACES(velto::ActivityDetecting)

public:
    [[nodiscard]] bool isActivityDetected() const override
    {
        ++queries;
        return active;
    }
    [[nodiscard]] QString activityStatusText() const override { return statusText; }
    [[nodiscard]] QString activityStatusSymbolName() const override { return symbolName; }

    bool active = false;
    QString statusText;
    QString symbolName;
    mutable int queries = 0;
};
