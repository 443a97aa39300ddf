#pragma once

#include "settings/LaunchAtLoginControlling.h"

#include <QList>

// Records every request to apply the launch-at-login choice.
class FakeLaunchAtLogin final : public velto::LaunchAtLoginControlling {
public:
    void setEnabled(bool enabled) override { calls.append(enabled); }
    [[nodiscard]] bool isTurnedOffElsewhere() const override { return turnedOffElsewhere; }

    QList<bool> calls;
    bool turnedOffElsewhere = false;
};
