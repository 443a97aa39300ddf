#pragma once

#include "ScreenRecordingStateProviding.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace velto {

// A window as the recording test sees it: whose it is and what its title says.
struct TitledWindow {
    // 0 when the owner is unknown.
    qint32 ownerPID = 0;
    // None when the system withholds the title.
    std::optional<QString> title;

    friend bool operator==(const TitledWindow&, const TitledWindow&) = default;
};

// Test A: a window of a running application, other than the ignored ones, whose title says "screen recording"
// in any letter case; or a window of a known screen recorder whose title says it is recording, broadcasting
// or streaming.
[[nodiscard]] bool hasScreenRecordingWindow(const QList<TitledWindow>& windows,
                                            const QList<AppSnapshot>& runningApplications);

// The recording decision on the platform's facts: the window titles first, then, only while the player that
// keeps recordings as documents runs, its document test. Platform providers give the two facts; this keeps
// the rules in one place.
class ScreenRecordingRule final : public ScreenRecordingStateProviding {
public:
    // The on-screen windows with their titles; empty when there is no window list.
    using WindowTitles = std::function<QList<TitledWindow>()>;
    // Whether an open document of the recording player is a screen recording; may block.
    using DocumentTest = std::function<bool()>;

    // A missing document test answers false.
    explicit ScreenRecordingRule(WindowTitles windowTitles, DocumentTest documentTest = {});

    [[nodiscard]] bool isScreenRecording(const QList<AppSnapshot>& runningApplications) const override;

private:
    WindowTitles m_windowTitles;
    DocumentTest m_documentTest;
};

} // namespace velto
