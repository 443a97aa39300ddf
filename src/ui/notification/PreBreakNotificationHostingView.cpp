#include "PreBreakNotificationHostingView.h"

#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <QQuickWindow>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace velto {

namespace NotificationMotion {

QEasingCurve arrivalCurve()
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(QPointF(0.23, 1.0), QPointF(0.32, 1.0), QPointF(1.0, 1.0));
    return curve;
}

QEasingCurve easeOut()
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(QPointF(0.0, 0.0), QPointF(0.58, 1.0), QPointF(1.0, 1.0));
    return curve;
}

} // namespace NotificationMotion

namespace NotificationSwipe {

int direction(bool invertedFromDevice)
{
    return invertedFromDevice ? -1 : 1;
}

std::optional<QPointF> preciseDelta(QPoint pixelDelta, QPoint angleDelta)
{
    if (!pixelDelta.isNull())
        return QPointF(pixelDelta);
    // Whole 120-unit notches are a wheel. A touchpad's smooth scrolling comes in fractions of a notch, at the
    // driver's 15 pixels of finger travel a notch: an eighth of a pixel a unit.
    constexpr int notch = 120;
    if (angleDelta.isNull() || (angleDelta.x() % notch == 0 && angleDelta.y() % notch == 0))
        return std::nullopt;
    return QPointF(angleDelta) / 8.0;
}

bool starts(bool hasPixelDelta, QPointF delta, int direction)
{
    return hasPixelDelta && delta.x() * direction > 0 && std::abs(delta.y()) < std::abs(delta.x());
}

double amount(double horizontalDistance, double width, int direction)
{
    if (!(width > 0))
        return 0;
    const double raw = horizontalDistance / width;
    return direction > 0 ? std::clamp(raw, 0.0, 1.0) : std::clamp(raw, -1.0, 0.0);
}

double progress(double amount, int direction)
{
    return std::max(0.0, amount * direction);
}

double offset(double progress, double width)
{
    return -progress * width;
}

double opacity(double progress)
{
    return 1.0 - std::min(0.25 * progress, 0.25);
}

} // namespace NotificationSwipe

PreBreakNotificationHostingView::PreBreakNotificationHostingView(QQuickItem* rootView,
                                                                 std::function<void()> swipeDismiss, QQuickItem* parent)
    : QQuickItem(parent)
    , onSwipeDismiss(std::move(swipeDismiss))
    , m_rootView(rootView)
{
    setClip(true);
    m_gestureGap.setSingleShot(true);
    m_gestureGap.setInterval(gestureGapMilliseconds);
    connect(&m_gestureGap, &QTimer::timeout, this, &PreBreakNotificationHostingView::endGesture);
    if (m_rootView) {
        m_rootView->setParentItem(this);
        setImplicitSize(m_rootView->width(), m_rootView->height());
    }
}

PreBreakNotificationHostingView::~PreBreakNotificationHostingView()
{
    if (m_animation)
        m_animation->stop();
}

void PreBreakNotificationHostingView::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (m_rootView)
        m_rootView->setHeight(newGeometry.height());
}

QParallelAnimationGroup* PreBreakNotificationHostingView::runningAnimation() const
{
    return m_animation && m_animation->state() == QAbstractAnimation::Running ? m_animation.data() : nullptr;
}

void PreBreakNotificationHostingView::animateContent(double x, double opacity, int milliseconds,
                                                     const QEasingCurve& curve, std::function<void()> finished)
{
    if (m_animation) {
        // Stopped, not finished: the replaced animation's ending does not run.
        m_animation->disconnect(this);
        m_animation->stop();
        m_animation->deleteLater();
    }
    if (!m_rootView)
        return;
    auto* group = new QParallelAnimationGroup(this);
    auto* slide = new QPropertyAnimation(m_rootView, "x", group);
    slide->setEndValue(x);
    auto* fade = new QPropertyAnimation(m_rootView, "opacity", group);
    fade->setEndValue(opacity);
    for (QPropertyAnimation* animation : {slide, fade}) {
        animation->setDuration(milliseconds);
        animation->setEasingCurve(curve);
    }
    m_animation = group;
    connect(group, &QAbstractAnimation::finished, this, [this, group, finished = std::move(finished)] {
        if (m_animation == group)
            m_animation = nullptr;
        group->deleteLater();
        if (finished)
            finished();
    });
    group->start();
}

void PreBreakNotificationHostingView::setLeaving()
{
    m_leaving = true;
    m_tracking = false;
    m_gestureGap.stop();
    if (m_rootView)
        m_rootView->setEnabled(false);
}

void PreBreakNotificationHostingView::wheelEvent(QWheelEvent* event)
{
    if (m_leaving) {
        event->ignore();
        return;
    }
    const std::optional<QPointF> precise = NotificationSwipe::preciseDelta(event->pixelDelta(), event->angleDelta());
    const bool hasPixelDelta = precise.has_value();
    const QPointF delta = precise.value_or(QPointF());
    const Qt::ScrollPhase phase = event->phase();
    // Without scroll phases (X11), a pause between events separates one gesture from the next.
    const bool quietBefore = !m_seenEvent || event->timestamp() - m_lastEventTime >= gestureGapMilliseconds;
    m_seenEvent = true;
    m_lastEventTime = event->timestamp();

    if (m_tracking) {
        if (phase == Qt::ScrollMomentum) {
            event->accept();
            return;
        }
        track(delta);
        event->accept();
        if (phase == Qt::ScrollEnd)
            endGesture();
        else if (!m_phased)
            m_gestureGap.start();
        return;
    }

    if (phase == Qt::ScrollBegin) {
        // Qt's begin carries no distance yet; the first move decides.
        m_armed = true;
        event->ignore();
        return;
    }
    const bool begins = (phase == Qt::ScrollUpdate && m_armed) || (phase == Qt::NoScrollPhase && quietBefore);
    if (phase == Qt::ScrollEnd || phase == Qt::ScrollUpdate)
        m_armed = false;
    const int direction = NotificationSwipe::direction(event->inverted() || m_naturalScrolling);
    if (!begins || window() == nullptr || !NotificationSwipe::starts(hasPixelDelta, delta, direction)) {
        event->ignore();
        return;
    }
    m_phased = phase != Qt::NoScrollPhase;
    beginTracking(direction);
    track(delta);
    event->accept();
    if (!m_phased)
        m_gestureGap.start();
}

void PreBreakNotificationHostingView::beginTracking(int direction)
{
    // The fingers take over from whatever the card was doing.
    if (m_animation) {
        m_animation->disconnect(this);
        m_animation->stop();
        m_animation->deleteLater();
        m_animation = nullptr;
    }
    m_tracking = true;
    m_direction = direction;
    m_distance = 0;
    m_progress = 0;
    m_startX = 0;
    m_startWidth = m_rootView ? m_rootView->width() : width();
}

void PreBreakNotificationHostingView::track(QPointF delta)
{
    m_distance += delta.x();
    const double amount = NotificationSwipe::amount(m_distance, m_startWidth, m_direction);
    m_progress = NotificationSwipe::progress(amount, m_direction);
    if (!m_rootView)
        return;
    m_rootView->setX(m_startX + NotificationSwipe::offset(m_progress, m_startWidth));
    m_rootView->setOpacity(NotificationSwipe::opacity(m_progress));
}

void PreBreakNotificationHostingView::endGesture()
{
    if (!m_tracking)
        return;
    m_tracking = false;
    m_armed = false;
    m_gestureGap.stop();
    if (!m_rootView || window() == nullptr)
        return;
    if (m_progress >= NotificationSwipe::completeAt) {
        if (onSwipeDismiss)
            onSwipeDismiss();
        return;
    }
    animateContent(m_startX, 1.0,
                   m_reduceMotion ? NotificationMotion::springBackReducedMilliseconds
                                  : NotificationMotion::springBackMilliseconds,
                   NotificationMotion::easeOut());
}

} // namespace velto
