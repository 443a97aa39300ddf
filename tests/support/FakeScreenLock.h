#pragma once

#include "scheduling/ScreenLocking.h"

#include <functional>

// A lock whose availability the test sets, counting questions and lock requests.
class FakeScreenLock final : public velto::ScreenLocking {
public:
    [[nodiscard]] bool isLockAvailable() const override
    {
        ++availabilityQueries;
        return available;
    }
    void lockScreen() override
    {
        ++lockRequests;
        if (onLock)
            onLock();
    }

    bool available = true;
    mutable int availabilityQueries = 0;
    int lockRequests = 0;
    std::function<void()> onLock;
};
