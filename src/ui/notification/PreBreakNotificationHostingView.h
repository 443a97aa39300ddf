#pragma once

#include <QEasingCurve>
#include <QPointF>
#include <QPointer>
#include <QQuickItem>
#include <QTimer>

#include <functional>
#include <optional>

class QParallelAnimationGroup;

namespace velto {

// How the card moves: it slides 28 px to the right as it fades in and back left as it fades out; with reduced
// motion it only fades, and faster. Times in milliseconds.
namespace NotificationMotion {
inline constexpr double slideDistance = 28;
inline constexpr int showMilliseconds = 320;
inline constexpr int showReducedMilliseconds = 160;
inline constexpr int hideMilliseconds = 200;
inline constexpr int hideReducedMilliseconds = 140;
inline constexpr int springBackMilliseconds = 220;
inline constexpr int springBackReducedMilliseconds = 140;
// Arrival: a cubic Bézier through (0.23, 1) and (0.32, 1), quick to move and slow to settle.
[[nodiscard]] QEasingCurve arrivalCurve();
// Departure and spring-back: the standard ease-out, a cubic Bézier through (0, 0) and (0.58, 1).
[[nodiscard]] QEasingCurve easeOut();
} // namespace NotificationMotion

// The arithmetic of closing the card with a horizontal two-finger swipe. The swipe is tracked as an amount
// that runs from 0 to ±1 card widths; its progress is that amount in the direction of the fingers.
namespace NotificationSwipe {
// -1 when the deltas arrive inverted from the device (natural scrolling), +1 otherwise.
[[nodiscard]] int direction(bool invertedFromDevice);
// What a scroll moved, in pixels, when it is precise scrolling (a touchpad); none for a mouse wheel's notches.
// Pixel deltas where the platform gives them; libinput on X11 reports a touchpad in angle units alone.
[[nodiscard]] std::optional<QPointF> preciseDelta(QPoint pixelDelta, QPoint angleDelta);
// A swipe starts on a precise (touchpad) scroll that is more horizontal than vertical and points the right way.
[[nodiscard]] bool starts(bool hasPixelDelta, QPointF delta, int direction);
// The tracked amount, limited to 0…1 for direction +1 and to −1…0 for direction −1.
[[nodiscard]] double amount(double horizontalDistance, double width, int direction);
// Progress towards closing: amount × direction, never below 0.
[[nodiscard]] double progress(double amount, int direction);
// How far left of its resting place the card sits, and how opaque it is, at a progress.
[[nodiscard]] double offset(double progress, double width);
[[nodiscard]] double opacity(double progress);
// A swipe released at or beyond this progress closes the card; below it the card springs back.
inline constexpr double completeAt = 1.0;
} // namespace NotificationSwipe

// Holds the card's content and lets a touchpad swipe push it out to the left: it follows the fingers and
// fades to 0.75; let go before a full card width and it springs back. The content, not the window, moves, so
// the card never strays onto a neighbouring monitor. Scroll events that are not such a swipe are left alone.
//
// Also runs the card's slide-and-fade animations, one at a time: starting one stops the one before.
class PreBreakNotificationHostingView final : public QQuickItem {
    Q_OBJECT

public:
    // Milliseconds without a scroll event after which a gesture without scroll phases counts as released.
    static constexpr int gestureGapMilliseconds = 160;

    PreBreakNotificationHostingView(QQuickItem* rootView, std::function<void()> swipeDismiss,
                                    QQuickItem* parent = nullptr);
    ~PreBreakNotificationHostingView() override;

    [[nodiscard]] QQuickItem* rootView() const { return m_rootView; }
    [[nodiscard]] bool isTracking() const { return m_tracking; }
    [[nodiscard]] double swipeProgress() const { return m_progress; }
    [[nodiscard]] QParallelAnimationGroup* runningAnimation() const;
    void setReduceMotion(bool reduceMotion) { m_reduceMotion = reduceMotion; }
    // The desktop scrolls naturally: deltas come inverted from the fingers though the events do not say so.
    void setNaturalScrolling(bool naturalScrolling) { m_naturalScrolling = naturalScrolling; }
    // The card is on its way out: no more swipes, and its controls take no more clicks.
    void setLeaving();
    [[nodiscard]] bool isLeaving() const { return m_leaving; }

    // Moves the content to x and opacity over milliseconds along curve, then calls finished (unless another
    // animation replaced this one first).
    void animateContent(double x, double opacity, int milliseconds, const QEasingCurve& curve,
                        std::function<void()> finished = {});
    // Ends a tracked gesture as if the fingers were lifted now.
    void endGesture();

    std::function<void()> onSwipeDismiss;

protected:
    void wheelEvent(QWheelEvent* event) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void beginTracking(int direction);
    void track(QPointF delta);

    QPointer<QQuickItem> m_rootView;
    QPointer<QParallelAnimationGroup> m_animation;
    QTimer m_gestureGap;
    bool m_reduceMotion = false;
    bool m_naturalScrolling = false;
    bool m_leaving = false;
    // A begin phase was seen; the first move decides whether it is a swipe.
    bool m_armed = false;
    bool m_tracking = false;
    bool m_phased = false;
    int m_direction = 1;
    double m_distance = 0;
    double m_progress = 0;
    double m_startX = 0;
    double m_startWidth = 0;
    quint64 m_lastEventTime = 0;
    bool m_seenEvent = false;
};

} // namespace velto
