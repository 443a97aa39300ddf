#pragma once

#include <QString>
#include <QVariantMap>

namespace velto {

// What this session's detection misses, as the settings window tells it.
struct DetectionCoverage {
    // One line naming what cannot be seen on this desktop and what would fix it; empty when nothing is missing.
    QString notice;
    // Typing is read as any recent input, so moving the pointer holds breaks back too.
    bool typingCountsPointer = false;

    friend bool operator==(const DetectionCoverage&, const DetectionCoverage&) = default;
};

// From the mechanism serving each capability ("windows", "idle", "typing", … as the platform names them) and
// the desktop's name as XDG_CURRENT_DESKTOP gives it (colon-separated, e.g. "ubuntu:GNOME"). A capability the
// map does not name counts as served.
[[nodiscard]] DetectionCoverage detectionCoverage(const QVariantMap& sources, const QString& desktop);

} // namespace velto
