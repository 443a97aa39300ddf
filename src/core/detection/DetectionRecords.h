#pragma once

#include <QDateTime>
#include <QObject>
#include <QRectF>
#include <QString>

#include <optional>

namespace velto {

// One running application as the workspace reports it.
struct AppSnapshot {
    Q_GADGET
    Q_PROPERTY(QString bundleIdentifier READ bundleIdentifierOrEmpty)
    Q_PROPERTY(bool isActive MEMBER isActive)
    Q_PROPERTY(qint32 processIdentifier MEMBER processIdentifier)

public:
    // The application identity (reverse-DNS desktop or Flatpak ID, or a WM_CLASS-derived name); none for
    // processes that have no identity.
    std::optional<QString> bundleIdentifier;
    // The frontmost application.
    bool isActive = false;
    qint32 processIdentifier = 0;

    [[nodiscard]] QString bundleIdentifierOrEmpty() const { return bundleIdentifier.value_or(QString()); }

    friend bool operator==(const AppSnapshot&, const AppSnapshot&) = default;
};

// One window on screen.
struct WindowDescriptor {
    Q_GADGET
    Q_PROPERTY(qint32 ownerPID MEMBER ownerPID)
    Q_PROPERTY(QRectF bounds MEMBER bounds)
    Q_PROPERTY(int layer MEMBER layer)

public:
    qint32 ownerPID = 0;
    // Global screen coordinates.
    QRectF bounds;
    // 0 is the normal application layer; panels, docks and overlays sit on others.
    int layer = 0;

    friend bool operator==(const WindowDescriptor&, const WindowDescriptor&) = default;
};

// What one detection pass found. Every pass starts from this default: nothing found.
struct DetectionSnapshot {
    Q_GADGET
    Q_PROPERTY(bool isInMeeting MEMBER isInMeeting)
    Q_PROPERTY(bool isWatchingVideo MEMBER isWatchingVideo)
    Q_PROPERTY(bool isScreenRecording MEMBER isScreenRecording)
    Q_PROPERTY(bool isInFullscreenGame MEMBER isInFullscreenGame)
    Q_PROPERTY(bool isInDeepFocusApp MEMBER isInDeepFocusApp)
    Q_PROPERTY(bool isIdle MEMBER isIdle)
    Q_PROPERTY(bool meetingPauseCamera MEMBER meetingPauseCamera)
    Q_PROPERTY(bool meetingPauseMicrophone MEMBER meetingPauseMicrophone)

public:
    bool isInMeeting = false;
    bool isWatchingVideo = false;
    bool isScreenRecording = false;
    bool isInFullscreenGame = false;
    bool isInDeepFocusApp = false;
    bool isIdle = false;
    bool meetingPauseCamera = false;
    bool meetingPauseMicrophone = false;
    std::optional<QString> meetingPauseAppBundleIdentifier;
    // When the pass ended, if it found any activity other than idleness.
    std::optional<QDateTime> activityDetectedAt;

    friend bool operator==(const DetectionSnapshot&, const DetectionSnapshot&) = default;
};

} // namespace velto
