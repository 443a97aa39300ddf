#pragma once

#include "scheduling/KeyDownTimeProviding.h"

class FakeKeyDownTime final : public velto::KeyDownTimeProviding {
public:
    [[nodiscard]] std::optional<double> secondsSinceLastKeyDown() const override { return seconds; }

    std::optional<double> seconds;
};
