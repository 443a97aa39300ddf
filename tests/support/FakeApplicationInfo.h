#pragma once

#include "detection/ApplicationInfoProviding.h"

#include <QHash>

#include <atomic>

// Installed applications as the test names them; counts the questions, which may come from a worker thread.
class FakeApplicationInfo final : public velto::ApplicationInfoProviding {
public:
    [[nodiscard]] std::optional<velto::ApplicationInfo> applicationInfo(const QString& identifier) const override
    {
        ++queries;
        const auto found = known.constFind(identifier);
        return found == known.cend() ? std::nullopt : std::optional(*found);
    }
    QHash<QString, velto::ApplicationInfo> known;
    mutable std::atomic<int> queries = 0;
};
