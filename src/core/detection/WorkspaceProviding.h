#pragma once

#include "DetectionRecords.h"

#include <QList>

namespace velto {

// The applications running in the session.
class WorkspaceProviding {
public:
    virtual ~WorkspaceProviding() = default;
    // Every running application, in the platform's order; the first one with isActive is the frontmost.
    // Asked afresh on every call, from the detection worker thread and, for the focus status text, from the
    // main thread, so implementations must be safe to call from both. Empty when the platform cannot tell.
    [[nodiscard]] virtual QList<AppSnapshot> runningApplications() const = 0;
};

} // namespace velto
