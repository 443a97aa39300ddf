#pragma once

#include "DetectionRecords.h"

#include <QList>

namespace velto {

// Whether the screen is being recorded or streamed.
class ScreenRecordingStateProviding {
public:
    virtual ~ScreenRecordingStateProviding() = default;
    // Whether there is evidence of a recording among these running applications (the list of the same
    // detection pass). May block while it asks other applications; detection worker thread only. False when
    // nothing can be read. ScreenRecordingRule holds the decision rules; implementations supply the facts.
    [[nodiscard]] virtual bool isScreenRecording(const QList<AppSnapshot>& runningApplications) const = 0;
};

} // namespace velto
