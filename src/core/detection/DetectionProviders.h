#pragma once

#include "AppCategoryProviding.h"
#include "CameraUsageProviding.h"
#include "ClockProviding.h"
#include "IdleTimeProviding.h"
#include "MicrophoneUsageProviding.h"
#include "ScreenProviding.h"
#include "ScreenRecordingStateProviding.h"
#include "VideoPlaybackProviding.h"
#include "WindowListProviding.h"
#include "WorkspaceProviding.h"

#include <functional>
#include <memory>

namespace velto {

// Everything detection asks of the system, one provider per question. All ten are required.
struct DetectionProviders {
    std::unique_ptr<WorkspaceProviding> workspace;
    std::unique_ptr<WindowListProviding> windowList;
    std::unique_ptr<ScreenProviding> screen;
    std::unique_ptr<IdleTimeProviding> idleTime;
    std::unique_ptr<CameraUsageProviding> camera;
    std::unique_ptr<MicrophoneUsageProviding> microphone;
    std::unique_ptr<VideoPlaybackProviding> videoPlayback;
    std::unique_ptr<ScreenRecordingStateProviding> screenRecording;
    std::unique_ptr<AppCategoryProviding> appCategory;
    std::unique_ptr<ClockProviding> clock;
    // Told true as a detection pass begins and false as it ends, when set: providers that share a server may
    // then ask it once for the whole pass instead of once per question.
    std::function<void(bool begins)> passBoundary;

    [[nodiscard]] bool isComplete() const
    {
        return workspace && windowList && screen && idleTime && camera && microphone && videoPlayback &&
               screenRecording && appCategory && clock;
    }
};

} // namespace velto
