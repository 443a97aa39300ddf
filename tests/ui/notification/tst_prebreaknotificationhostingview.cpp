#include "PreBreakNotificationHostingView.h"

#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QWheelEvent>

using namespace velto;

namespace {

// A card-sized item in a window, hosted the way the presenter hosts the real card.
struct Rig {
    Rig()
    {
        card->setSize(QSizeF(420, 216));
        host->setSize(QSizeF(420, 216));
        window.resize(420, 216);
    }

    // One wheel event as a touchpad sends it; timestamps in milliseconds, set by the test.
    // With anglesOnly, as libinput's touchpad scrolling arrives on X11: no pixel deltas, 8 angle units a pixel.
    bool scroll(QPointF pixels, Qt::ScrollPhase phase, bool inverted = false, quint64 timestamp = 0,
                bool anglesOnly = false)
    {
        const QPointF at(200, 100);
        QWheelEvent event(at, window.mapToGlobal(at), anglesOnly ? QPoint() : pixels.toPoint(), (pixels * 8).toPoint(),
                          Qt::NoButton, Qt::NoModifier, phase, inverted);
        event.setTimestamp(timestamp);
        event.setAccepted(false);
        QCoreApplication::sendEvent(host, &event);
        return event.isAccepted();
    }

    // Ends the running animation as if its time had passed.
    static void finish(QAbstractAnimation* animation)
    {
        QVERIFY(animation != nullptr);
        animation->setCurrentTime(animation->totalDuration());
    }

    QQuickWindow window;
    QQuickItem* card = new QQuickItem;
    int dismissals = 0;
    PreBreakNotificationHostingView* host = new PreBreakNotificationHostingView(
        card, [this] { ++dismissals; }, window.contentItem());
};

QPropertyAnimation* animationOf(QParallelAnimationGroup* group, const char* property)
{
    for (int i = 0; group && i < group->animationCount(); ++i) {
        auto* animation = qobject_cast<QPropertyAnimation*>(group->animationAt(i));
        if (animation && animation->propertyName() == property)
            return animation;
    }
    return nullptr;
}

} // namespace

class TestPreBreakNotificationHostingView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatStartsASwipe_data()
    {
        QTest::addColumn<bool>("pixels");
        QTest::addColumn<QPointF>("delta");
        QTest::addColumn<bool>("inverted");
        QTest::addColumn<bool>("starts");
        QTest::newRow("touchpad, leftwards") << true << QPointF(12, 3) << false << true;
        QTest::newRow("touchpad, the other way") << true << QPointF(-12, 0) << false << false;
        QTest::newRow("mouse wheel") << false << QPointF(12, 0) << false << false;
        QTest::newRow("diagonal, as much down as across") << true << QPointF(10, 10) << false << false;
        QTest::newRow("diagonal, more across") << true << QPointF(10, -9) << false << true;
    }
    void whatCountsAsPreciseScrolling()
    {
        using NotificationSwipe::preciseDelta;
        QCOMPARE(preciseDelta({12, 3}, {96, 24}), QPointF(12, 3));
        QCOMPARE(preciseDelta({}, {100, -20}), QPointF(12.5, -2.5)); // libinput's touchpad on X11
        QCOMPARE(preciseDelta({}, {0, -120}), std::nullopt);         // a wheel notch
        QCOMPARE(preciseDelta({}, {240, 0}), std::nullopt);          // a tilt wheel
        QCOMPARE(preciseDelta({}, {}), std::nullopt);
    }

    void whatStartsASwipe()
    {
        QFETCH(bool, pixels);
        QFETCH(QPointF, delta);
        QFETCH(bool, inverted);
        QFETCH(bool, starts);
        QCOMPARE(NotificationSwipe::starts(pixels, delta, NotificationSwipe::direction(inverted)), starts);
    }

    void aFullWidthSwipeDismisses()
    {
        Rig rig;
        QVERIFY(!rig.scroll({}, Qt::ScrollBegin));
        QVERIFY(rig.scroll({200, 10}, Qt::ScrollUpdate));
        QVERIFY(rig.host->isTracking());
        QCOMPARE(rig.card->x(), -200.0);
        // Past the full width the card stays at it.
        QVERIFY(rig.scroll({480, 0}, Qt::ScrollUpdate));
        QCOMPARE(rig.card->x(), -420.0);
        QCOMPARE(rig.card->opacity(), 0.75);
        QCOMPARE(rig.dismissals, 0);
        QVERIFY(rig.scroll({}, Qt::ScrollEnd));
        QCOMPARE(rig.dismissals, 1);
        QVERIFY(!rig.host->isTracking());
        // Momentum after the end is not a new swipe.
        QVERIFY(!rig.scroll({30, 0}, Qt::ScrollMomentum));
        QCOMPARE(rig.dismissals, 1);

        // On X11 a touchpad swipe comes without phases and in angle units only.
        Rig x11;
        QVERIFY(x11.scroll({25, 2}, Qt::NoScrollPhase, false, 0, true));
        QVERIFY(x11.host->isTracking());
        QCOMPARE(x11.card->x(), -25.0);
    }

    void aSwipeLetGoAtSixtyPercentSpringsBack_data()
    {
        QTest::addColumn<bool>("reduceMotion");
        QTest::addColumn<int>("milliseconds");
        QTest::newRow("animations on") << false << 220;
        QTest::newRow("reduced motion") << true << 140;
    }
    void aSwipeLetGoAtSixtyPercentSpringsBack()
    {
        QFETCH(bool, reduceMotion);
        QFETCH(int, milliseconds);
        Rig rig;
        rig.host->setReduceMotion(reduceMotion);
        rig.scroll({}, Qt::ScrollBegin);
        rig.scroll({126, 0}, Qt::ScrollUpdate);
        rig.scroll({126, 0}, Qt::ScrollUpdate);
        QCOMPARE(rig.card->x(), -252.0);
        QCOMPARE(rig.card->opacity(), 0.85);
        rig.scroll({}, Qt::ScrollEnd);
        QCOMPARE(rig.dismissals, 0);

        QParallelAnimationGroup* back = rig.host->runningAnimation();
        QVERIFY(back != nullptr);
        QPropertyAnimation* slide = animationOf(back, "x");
        QPropertyAnimation* fade = animationOf(back, "opacity");
        QVERIFY(slide && fade);
        QCOMPARE(slide->duration(), milliseconds);
        QCOMPARE(slide->endValue().toDouble(), 0.0);
        QCOMPARE(fade->endValue().toDouble(), 1.0);
        QCOMPARE(slide->easingCurve(), NotificationMotion::easeOut());
        Rig::finish(back);
        QCOMPARE(rig.card->x(), 0.0);
        QCOMPARE(rig.card->opacity(), 1.0);
    }

    void naturalScrollingSwipesWithNegativeDeltas()
    {
        Rig rig;
        rig.scroll({}, Qt::ScrollBegin, true);
        QVERIFY(rig.scroll({-300, 0}, Qt::ScrollUpdate, true));
        QCOMPARE(rig.card->x(), -300.0);
        rig.scroll({-200, 0}, Qt::ScrollUpdate, true);
        rig.scroll({}, Qt::ScrollEnd, true);
        QCOMPARE(rig.dismissals, 1);

        // Where the events cannot tell (X11), the desktop's touchpad setting says which way the fingers went.
        Rig x11;
        x11.host->setNaturalScrolling(true);
        QVERIFY(!x11.scroll({120, 0}, Qt::NoScrollPhase, false, 1000));
        QVERIFY(x11.scroll({-120, 0}, Qt::NoScrollPhase, false, 2000));
        QCOMPARE(x11.card->x(), -120.0);
    }

    void scrollsThatAreNoLeftwardSwipeLeaveTheCardAlone()
    {
        Rig rig;
        rig.scroll({}, Qt::ScrollBegin);
        QVERIFY(!rig.scroll({6, 40}, Qt::ScrollUpdate));
        // Once the gesture went vertical, turning sideways later does not make it a swipe.
        QVERIFY(!rig.scroll({300, 0}, Qt::ScrollUpdate));
        rig.scroll({}, Qt::ScrollEnd);
        QCOMPARE(rig.card->x(), 0.0);
        QCOMPARE(rig.card->opacity(), 1.0);
        QVERIFY(!rig.host->isTracking());

        // A swipe that starts leftwards and then reverses stops at the resting place, never right of it.
        rig.scroll({}, Qt::ScrollBegin);
        rig.scroll({50, 0}, Qt::ScrollUpdate);
        rig.scroll({-200, 0}, Qt::ScrollUpdate);
        QCOMPARE(rig.card->x(), 0.0);
        QCOMPARE(rig.host->swipeProgress(), 0.0);
    }

    void withoutScrollPhasesAPauseSeparatesGestures()
    {
        Rig rig;
        QVERIFY(rig.scroll({100, 0}, Qt::NoScrollPhase, false, 1000));
        QVERIFY(rig.host->isTracking());
        QVERIFY(rig.scroll({100, 0}, Qt::NoScrollPhase, false, 1016));
        QCOMPARE(rig.card->x(), -200.0);
        // The fingers lift: no more events, and the gap ends the gesture.
        rig.host->endGesture();
        QVERIFY(!rig.host->isTracking());
        QCOMPARE(rig.dismissals, 0);
        Rig::finish(rig.host->runningAnimation());

        // An event right after another that was not a swipe does not start one mid-scroll.
        QVERIFY(!rig.scroll({0, 30}, Qt::NoScrollPhase, false, 5000));
        QVERIFY(!rig.scroll({100, 0}, Qt::NoScrollPhase, false, 5016));
        QVERIFY(rig.scroll({420, 0}, Qt::NoScrollPhase, false,
                           5016 + PreBreakNotificationHostingView::gestureGapMilliseconds));
        rig.host->endGesture();
        QCOMPARE(rig.dismissals, 1);

        // A card on its way out takes no swipe: its fade must run to the end.
        rig.host->setLeaving();
        QVERIFY(!rig.scroll({420, 0}, Qt::NoScrollPhase, false, 9000));
        QVERIFY(!rig.host->isTracking());
    }

    void aNewAnimationReplacesTheRunningOneWithoutItsEnding()
    {
        Rig rig;
        QStringList endings;
        rig.host->animateContent(-28, 0, 200, NotificationMotion::easeOut(),
                                 [&] { endings.append(QStringLiteral("old")); });
        QParallelAnimationGroup* old = rig.host->runningAnimation();
        rig.host->animateContent(0, 1, 320, NotificationMotion::arrivalCurve(),
                                 [&] { endings.append(QStringLiteral("new")); });
        QVERIFY(rig.host->runningAnimation() != old);
        Rig::finish(rig.host->runningAnimation());
        QCOMPARE(endings, QStringList({QStringLiteral("new")}));
        QCOMPARE(rig.card->x(), 0.0);
        QCOMPARE(rig.card->opacity(), 1.0);
    }
};

QTEST_MAIN(TestPreBreakNotificationHostingView)
#include "tst_prebreaknotificationhostingview.moc"
