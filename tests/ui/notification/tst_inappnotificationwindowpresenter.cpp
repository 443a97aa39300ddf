#include "InAppNotificationWindowPresenter.h"
#include "OffscreenScreens.h"
#include "PreBreakNotificationHostingView.h"
#include "PseudoTranslator.h"
#include "notification/PreBreakNotificationDisplayModel.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QPalette>
#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScopeGuard>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QWheelEvent>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// Two screens; the primary one (the offscreen platform makes it a-main) is not at the origin, and
// another lies to its left.
constexpr char screensConfig[] = R"({"screens": [
    {"name": "b-left", "x": 0, "y": 0, "width": 1920, "height": 1080},
    {"name": "a-main", "x": 1920, "y": 100, "width": 1600, "height": 900}
]})";

// A presenter with reduce motion under the test's control, and a journal of what the card's controls call.
struct Rig {
    InAppNotificationWindowPresenter presenter{[this] { return reduceMotion; }};
    bool reduceMotion = false;
    QStringList calls;
    std::shared_ptr<PreBreakNotificationDisplayModel> model;

    QQuickWindow* show(BreakType type = BreakType::Short, double remaining = 59)
    {
        model = std::make_shared<PreBreakNotificationDisplayModel>(type, remaining);
        presenter.show(
            model, [this] { calls.append(u"breakNow"_s); },
            [this](double seconds) { calls.append(u"pause %1"_s.arg(seconds)); }, [this] { calls.append(u"skip"_s); },
            [this] { calls.append(u"dismiss"_s); });
        return presenter.panel();
    }

    [[nodiscard]] PreBreakNotificationHostingView* host() const
    {
        return InAppNotificationWindowPresenter::hostingView(presenter.panel());
    }
    [[nodiscard]] QQuickItem* card() const { return host() ? host()->rootView() : nullptr; }
};

QQuickItem* item(QQuickWindow* window, const QString& name)
{
    return window ? window->findChild<QQuickItem*>(name) : nullptr;
}

void click(QQuickWindow* window, QQuickItem* target)
{
    QVERIFY(target != nullptr);
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier,
                      target->mapToScene(QPointF(target->width() / 2, target->height() / 2)).toPoint());
}

QVariant evaluate(QQuickItem* target, const QString& expression)
{
    QQmlExpression e(qmlContext(target), target, expression);
    return e.evaluate();
}

QPropertyAnimation* animationOf(QParallelAnimationGroup* group, const char* property)
{
    for (int i = 0; group && i < group->animationCount(); ++i) {
        auto* animation = qobject_cast<QPropertyAnimation*>(group->animationAt(i));
        if (animation && animation->propertyName() == property)
            return animation;
    }
    return nullptr;
}

void finish(QAbstractAnimation* animation)
{
    QVERIFY(animation != nullptr);
    animation->setCurrentTime(animation->totalDuration());
}

// Lets the presenter's deferred hide run.
void runDeferred(QObject* presenter)
{
    QCoreApplication::sendPostedEvents(presenter, QEvent::MetaCall);
}

QPalette paletteWithWindow(const QColor& color)
{
    QPalette palette;
    palette.setColor(QPalette::Window, color);
    return palette;
}

} // namespace

class TestInAppNotificationWindowPresenter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QGuiApplication::setPalette(paletteWithWindow(QColor(0xf6, 0xf6, 0xf6))); }

    void cleanup() { QTRY_VERIFY(QGuiApplication::topLevelWindows().isEmpty()); }

    void aToolWindowAtTheTopLeftOfThePrimaryScreen()
    {
        Rig rig;
        QQuickWindow* panel = rig.show();
        QVERIFY(panel != nullptr);
        QScreen* primary = QGuiApplication::primaryScreen();
        QCOMPARE(primary->name(), u"a-main"_s);
        QCOMPARE(panel->screen(), primary);
        QCOMPARE(panel->geometry(), QRect(1936, 120, 420, 216));
        // Out of the user's way: never takes focus, never in the task bar, above other windows.
        const Qt::WindowFlags flags = panel->flags();
        QCOMPARE(flags & Qt::WindowType_Mask, Qt::Tool);
        QVERIFY(flags.testFlag(Qt::FramelessWindowHint));
        QVERIFY(flags.testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(flags.testFlag(Qt::WindowDoesNotAcceptFocus));
        QVERIFY(QGuiApplication::focusWindow() != panel);
        QVERIFY(QTest::qWaitForWindowExposed(panel));
        // The slide happens inside: the window does not move while the card arrives.
        finish(rig.host()->runningAnimation());
        QCOMPARE(panel->geometry(), QRect(1936, 120, 420, 216));
        QCOMPARE(rig.card()->size(), QSizeF(420, 216));
    }

    // In a language with longer words the card's own labels are translated and still fit: the countdown's block
    // holds its label and keeps clear of the sentence, the heading keeps clear of the close button, and the four
    // buttons stay on the card.
    void labelsAreInTheUsersLanguageAndFit()
    {
        PseudoTranslator translator;
        QCoreApplication::installTranslator(&translator);
        const auto uninstall = qScopeGuard([&] { QCoreApplication::removeTranslator(&translator); });
        Rig rig;
        QQuickWindow* panel = rig.show();
        QVERIFY(panel != nullptr);
        finish(rig.host()->runningAnimation());
        for (const char* name : {"upcomingLabel", "breakInLabel", "breakNowButton", "pauseOneMinuteButton",
                                 "pauseThreeMinutesButton", "skipButton", "swipeHint", "dismissButton"}) {
            QQuickItem* shown = item(panel, QLatin1String(name));
            QVERIFY2(shown, name);
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(shown);
            const QString text = shown->property("text").isValid() ? shown->property("text").toString()
                                 : accessible                      ? accessible->text(QAccessible::Name)
                                                                   : QString();
            QVERIFY2(PseudoTranslator::isTranslated(text), name);
        }

        auto left = [](QQuickItem* target) { return target->mapToScene(QPointF()).x(); };
        auto right = [](QQuickItem* target) { return target->mapToScene(QPointF(target->width(), 0)).x(); };
        QQuickItem* breakIn = item(panel, u"breakInLabel"_s);
        QQuickItem* countdown = item(panel, u"countdownBlock"_s);
        QVERIFY(left(countdown) <= left(breakIn) && right(breakIn) <= right(countdown));
        QVERIFY(right(item(panel, u"bodyText"_s)) <= left(countdown));
        QVERIFY(right(countdown) <= panel->width() - 22);
        QVERIFY(right(item(panel, u"upcomingLabel"_s)) <= left(item(panel, u"dismissButton"_s)));
        for (const char* name : {"breakNowButton", "pauseOneMinuteButton", "pauseThreeMinutesButton", "skipButton"})
            QVERIFY2(right(item(panel, QLatin1String(name))) <= panel->width() - 22, name);
    }

    // Each language Velto ships, on a card of the fixed size: no text cut short, no button off the card.
    void everyLanguageFitsTheCard_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<BreakType>("type");
        for (const char* language : {"de", "fr", "es", "it", "pt_BR", "nl", "pl", "ru", "uk", "ja", "zh_CN", "ko"}) {
            QTest::addRow("%s short", language) << QString::fromLatin1(language) << BreakType::Short;
            QTest::addRow("%s long", language) << QString::fromLatin1(language) << BreakType::Long;
        }
    }

    void everyLanguageFitsTheCard()
    {
        QFETCH(QString, language);
        QFETCH(BreakType, type);
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(VELTO_TRANSLATIONS_BUILT "/velto_") + language + u".qm"_s));
        QCoreApplication::installTranslator(&translator);
        const auto uninstall = qScopeGuard([&] { QCoreApplication::removeTranslator(&translator); });
        Rig rig;
        QQuickWindow* panel = rig.show(type, 125);
        QVERIFY(panel != nullptr);
        finish(rig.host()->runningAnimation());
        for (const char* name : {"upcomingLabel", "titleText", "bodyText", "breakInLabel", "swipeHint"}) {
            QQuickItem* text = item(panel, QLatin1String(name));
            QVERIFY2(text, name);
            const QQuickItem* label = text->property("truncated").isValid() ? text : text->findChild<QQuickItem*>();
            QVERIFY2(label && !label->property("truncated").toBool(),
                     qPrintable(QLatin1String(name) + u": "_s + text->property("text").toString()));
        }
        for (const char* name : {"breakNowButton", "pauseOneMinuteButton", "pauseThreeMinutesButton", "skipButton"})
            QVERIFY2(item(panel, QLatin1String(name))
                             ->mapToScene(QPointF(item(panel, QLatin1String(name))->width(), 0))
                             .x() <= panel->width() - 22,
                     name);
    }

    void arrivesAndLeavesWithTheRightMotion_data()
    {
        QTest::addColumn<bool>("reduceMotion");
        QTest::addColumn<double>("offsetX");
        QTest::addColumn<int>("arrivalMs");
        QTest::addColumn<int>("leavingMs");
        QTest::newRow("slides 28 px while fading") << false << -28.0 << 320 << 200;
        QTest::newRow("reduced motion only fades") << true << 0.0 << 160 << 140;
    }
    void arrivesAndLeavesWithTheRightMotion()
    {
        QFETCH(bool, reduceMotion);
        QFETCH(double, offsetX);
        QFETCH(int, arrivalMs);
        QFETCH(int, leavingMs);
        Rig rig;
        rig.reduceMotion = reduceMotion;
        QPointer<QQuickWindow> panel = rig.show();
        QCOMPARE(rig.card()->x(), offsetX);
        QCOMPARE(rig.card()->opacity(), 0.0);
        QParallelAnimationGroup* arrival = rig.host()->runningAnimation();
        QPropertyAnimation* slide = animationOf(arrival, "x");
        QPropertyAnimation* fade = animationOf(arrival, "opacity");
        QVERIFY(slide && fade);
        QCOMPARE(slide->duration(), arrivalMs);
        QCOMPARE(fade->duration(), arrivalMs);
        QCOMPARE(slide->easingCurve(), NotificationMotion::arrivalCurve());
        finish(arrival);
        QCOMPARE(rig.card()->x(), 0.0);
        QCOMPARE(rig.card()->opacity(), 1.0);

        // Hiding waits for the event loop, then leaves to the left.
        rig.presenter.hide();
        QCOMPARE(rig.host()->runningAnimation(), nullptr);
        runDeferred(&rig.presenter);
        QParallelAnimationGroup* leaving = rig.host()->runningAnimation();
        slide = animationOf(leaving, "x");
        QVERIFY(slide != nullptr);
        QCOMPARE(slide->duration(), leavingMs);
        QCOMPARE(slide->endValue().toDouble(), offsetX);
        QCOMPARE(animationOf(leaving, "opacity")->endValue().toDouble(), 0.0);
        QCOMPARE(slide->easingCurve(), NotificationMotion::easeOut());
        QCOMPARE(rig.presenter.panel(), panel.data());
        // A late click on the leaving card is not a second answer.
        click(panel, item(panel, u"breakNowButton"_s));
        QVERIFY(rig.calls.isEmpty());
        QCOMPARE(rig.host()->runningAnimation(), leaving);
        // Nor does a second hide start the fade over.
        rig.presenter.hide();
        runDeferred(&rig.presenter);
        QCOMPARE(rig.host()->runningAnimation(), leaving);

        finish(leaving);
        QCOMPARE(rig.presenter.panel(), nullptr);
        QVERIFY(!panel->isVisible());
        QTRY_VERIFY(panel.isNull());
        // With the card gone, its engine goes too; the next card builds one afresh.
        QTRY_VERIFY(!rig.presenter.engineIfCreated());
        QVERIFY(rig.show());
    }

    void aShowWhileTheCardFadesOutKeepsTheNewCard()
    {
        Rig rig;
        QPointer<QQuickWindow> first = rig.show(BreakType::Short);
        finish(rig.host()->runningAnimation());
        rig.presenter.hide();
        runDeferred(&rig.presenter);
        QPointer<QParallelAnimationGroup> fading = rig.host()->runningAnimation();
        QVERIFY(fading);

        QPointer<QQuickWindow> second = rig.show(BreakType::Long);
        QVERIFY(second && second != first);
        // The fading card is gone at once.
        QVERIFY(!first || !first->isVisible());
        QCOMPARE(rig.presenter.panel(), second.data());
        // Its fade, had it run out, would not take the new card with it.
        if (fading)
            finish(fading);
        QCOMPARE(rig.presenter.panel(), second.data());
        QTRY_VERIFY(first.isNull());
        QVERIFY(second->isVisible());
        QCOMPARE(item(second, u"titleText"_s)->property("text").toString(), u"Deep rest coming up"_s);

        // A hide queued before a show runs first, so the show still wins.
        rig.presenter.hide();
        QPointer<QQuickWindow> third = rig.show(BreakType::Short);
        runDeferred(&rig.presenter);
        QCOMPARE(rig.presenter.panel(), third.data());
        QVERIFY(third->isVisible());
    }

    void textsFollowTheBreakAndTheCountdownTheModel()
    {
        Rig rig;
        QQuickWindow* panel = rig.show(BreakType::Short, 59.9);
        auto text = [panel](const QString& name) { return item(panel, name)->property("text").toString(); };
        QCOMPARE(text(u"titleText"_s), u"Quick break coming up"_s);
        QCOMPARE(text(u"countdownText"_s), u"0:59"_s);
        QQuickItem* countdown = item(panel, u"countdownBlock"_s);
        QCOMPARE(evaluate(countdown, u"Accessible.name"_s).toString(), u"Break in 59 seconds"_s);

        rig.model->setTimeRemaining(125);
        QCOMPARE(text(u"countdownText"_s), u"2:05"_s);
        QCOMPARE(evaluate(countdown, u"Accessible.name"_s).toString(), u"Break in 2 minutes 5 seconds"_s);
        // The buttons keep to one row inside the card's padding.
        QQuickItem* toolbar = item(panel, u"toolbar"_s);
        QVERIFY(toolbar->mapToScene(QPointF(toolbar->width(), 0)).x() <= 420 - 22);
    }

    void controlsCallTheirActions_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("call");
        QTest::newRow("break now") << u"breakNowButton"_s << u"breakNow"_s;
        QTest::newRow("1 min") << u"pauseOneMinuteButton"_s << u"pause 60"_s;
        QTest::newRow("3 min") << u"pauseThreeMinutesButton"_s << u"pause 180"_s;
        QTest::newRow("skip") << u"skipButton"_s << u"skip"_s;
        QTest::newRow("close") << u"dismissButton"_s << u"dismiss"_s;
    }
    void controlsCallTheirActions()
    {
        QFETCH(QString, control);
        QFETCH(QString, call);
        Rig rig;
        QQuickWindow* panel = rig.show();
        QVERIFY(QTest::qWaitForWindowExposed(panel));
        finish(rig.host()->runningAnimation());
        click(panel, item(panel, control));
        QCOMPARE(rig.calls, QStringList({call}));
    }

    void coloursFollowTheDesktopPalette()
    {
        Rig rig;
        rig.show();
        QCOMPARE(rig.card()->property("dark").toBool(), false);

        QGuiApplication::setPalette(paletteWithWindow(QColor(0x2b, 0x2b, 0x2e)));
        QQuickWindow* dark = rig.show();
        QCOMPARE(rig.card()->property("dark").toBool(), true);
        QCOMPARE(item(dark, u"titleText"_s)->property("color").value<QColor>().rgba(),
                 QColor::fromRgbF(0.99F, 0.99F, 0.99F).rgba());
        // The primary button is filled with the primary colour (white on dark); the others only have a border.
        auto fill = [dark](const QString& button) { return item(dark, button)->findChild<QQuickItem*>(u"fill"_s); };
        QCOMPARE(fill(u"breakNowButton"_s)->property("color").value<QColor>(), QColor(Qt::white));
        QCOMPARE(fill(u"skipButton"_s)->property("color").value<QColor>().alpha(), 0);
        const QColor material = rig.card()->property("materialColor").value<QColor>();
        QCOMPARE(material.rgb(), QColor(0x2b, 0x2b, 0x2e).rgb());
        QVERIFY(material.alphaF() < 1.0F);
    }

    void aSwipeOverTheButtonsReachesTheCard()
    {
        // Delivered the way the window delivers it, over a button: the controls let it pass to the card's host.
        Rig rig;
        QQuickWindow* panel = rig.show();
        QVERIFY(QTest::qWaitForWindowExposed(panel));
        finish(rig.host()->runningAnimation());
        QQuickItem* button = item(panel, u"pauseOneMinuteButton"_s);
        const QPointF at = button->mapToScene(QPointF(button->width() / 2, button->height() / 2));
        auto scroll = [&](QPoint pixels, Qt::ScrollPhase phase) {
            QWheelEvent event(at, panel->mapToGlobal(at), pixels, pixels * 12, Qt::NoButton, Qt::NoModifier, phase,
                              false);
            QCoreApplication::sendEvent(panel, &event);
        };
        scroll({}, Qt::ScrollBegin);
        scroll({250, 0}, Qt::ScrollUpdate);
        QCOMPARE(rig.card()->x(), -250.0);
        scroll({250, 0}, Qt::ScrollUpdate);
        scroll({}, Qt::ScrollEnd);
        QCOMPARE(rig.calls, QStringList({u"dismiss"_s}));
    }
};

int main(int argc, char** argv)
{
    QTemporaryDir configDir;
    if (!useOffscreenScreens(configDir, screensConfig))
        return 1;
    QGuiApplication app(argc, argv);
    TestInAppNotificationWindowPresenter test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_inappnotificationwindowpresenter.moc"
