#include "InAppNotificationWindowPresenter.h"

#include "BreakViewModel.h"
#include "BreakWindow.h"
#include "DesktopSettings.h"
#include "FreedMemory.h"
#include "LayerShell.h"
#include "MainScreen.h"
#include "NotificationWindowHints.h"
#include "PreBreakNotificationHostingView.h"
#include "notification/PreBreakNotificationDisplayModel.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickImageProvider>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace velto {
namespace {

// The application's icon, rounded like the card's other tiles; the engine asks for it by URL.
class AppIconProvider final : public QQuickImageProvider {
public:
    AppIconProvider()
        : QQuickImageProvider(QQuickImageProvider::Image)
    {}

    QImage requestImage(const QString&, QSize* size, const QSize&) override
    {
        constexpr int side = 64;
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        QPainterPath rounded;
        rounded.addRoundedRect(QRectF(0, 0, side, side), side / 4.0, side / 4.0);
        painter.setClipPath(rounded);
        painter.drawPixmap(0, 0, QGuiApplication::windowIcon().pixmap(QSize(side, side)));
        painter.end();
        if (size)
            *size = image.size();
        return image;
    }
};

} // namespace

InAppNotificationActions::InAppNotificationActions(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel,
                                                   std::function<void()> onBreakNow,
                                                   std::function<void(double)> onPause, std::function<void()> onSkip,
                                                   std::function<void()> onDismiss, QObject* parent)
    : QObject(parent)
    , m_displayModel(std::move(displayModel))
    , m_onBreakNow(std::move(onBreakNow))
    , m_onPause(std::move(onPause))
    , m_onSkip(std::move(onSkip))
    , m_onDismiss(std::move(onDismiss))
{}

void InAppNotificationActions::breakNow()
{
    if (m_onBreakNow)
        m_onBreakNow();
}

void InAppNotificationActions::pause(double seconds)
{
    if (m_onPause)
        m_onPause(seconds);
}

void InAppNotificationActions::skip()
{
    if (m_onSkip)
        m_onSkip();
}

void InAppNotificationActions::dismiss()
{
    if (m_onDismiss)
        m_onDismiss();
}

QRect InAppNotificationWindowPresenter::finalFrame(const QRect& availableGeometry)
{
    return {availableGeometry.left() + leftMargin, availableGeometry.top() + topMargin, cardWidth, cardHeight};
}

InAppNotificationWindowPresenter::InAppNotificationWindowPresenter(std::function<bool()> reduceMotion,
                                                                   std::function<bool()> naturalScrolling,
                                                                   QObject* parent)
    : QObject(parent)
    , m_reduceMotion(std::move(reduceMotion))
    , m_naturalScrolling(std::move(naturalScrolling))
{
    if (!m_reduceMotion || !m_naturalScrolling) {
        m_desktop = new DesktopSettingsCache(this);
        m_desktop->refresh();
    }
}

InAppNotificationWindowPresenter::~InAppNotificationWindowPresenter()
{
    // Cards still up or fading were made by the engine's components; they go before the engine does.
    for (QQuickWindow* window : findChildren<QQuickWindow*>(Qt::FindDirectChildrenOnly)) {
        window->disconnect(this);
        delete window;
    }
}

bool InAppNotificationWindowPresenter::reduceMotion() const
{
    if (m_reduceMotion)
        return m_reduceMotion();
    return m_desktop && m_desktop->reduceMotion();
}

bool InAppNotificationWindowPresenter::naturalScrolling() const
{
    if (m_naturalScrolling)
        return m_naturalScrolling();
    return m_desktop && m_desktop->naturalScrolling();
}

QQmlEngine& InAppNotificationWindowPresenter::engine()
{
    if (!m_engine) {
        BreakWindow::useSoftwareRendering();
        m_engine = makeWindowEngine();
        m_engine->addImageProvider(u"veltonotificationicon"_s, new AppIconProvider);
    }
    return *m_engine;
}

PreBreakNotificationHostingView* InAppNotificationWindowPresenter::hostingView(QQuickWindow* panel)
{
    return panel ? panel->findChild<PreBreakNotificationHostingView*>() : nullptr;
}

QQuickWindow*
InAppNotificationWindowPresenter::makePanel(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel,
                                            std::function<void()> onBreakNow, std::function<void(double)> onPause,
                                            std::function<void()> onSkip, std::function<void()> onDismiss)
{
    if (!displayModel)
        return nullptr;
    QQmlEngine& qml = engine();
    static const QUrl source(u"qrc:/Velto/Notification/InAppNotificationView.qml"_s);
    QQmlComponent component(&qml, source, QQmlComponent::PreferSynchronous);
    if (!component.isReady()) {
        qWarning("velto: the pre-break card cannot be built: %s", qPrintable(component.errorString()));
        return nullptr;
    }

    auto* window = new QQuickWindow;
    static_cast<QObject*>(window)->setParent(this);
    // After the deletions the window's teardown queues, so that what it frees is free by then.
    connect(window, &QObject::destroyed, this,
            [this] { QTimer::singleShot(0, this, &InAppNotificationWindowPresenter::releaseBetweenCards); });
    // A tool window the window manager keeps on top and never focuses; on X11 the hints below add every
    // workspace and no taskbar entry.
    window->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus);
    window->setProperty("_q_showWithoutActivating", true);
    // An alpha channel, so a compositing desktop shows the rounded corners and the translucent material.
    QSurfaceFormat format = window->format();
    format.setAlphaBufferSize(8);
    window->setFormat(format);
    window->setColor(Qt::transparent);
    window->setTitle(u"Velto"_s);
    window->resize(cardWidth, cardHeight);

    auto* actions = new InAppNotificationActions(displayModel, std::move(onBreakNow), std::move(onPause),
                                                 std::move(onSkip), onDismiss, window);
    const QPalette palette = QGuiApplication::palette();
    const QColor windowColor = palette.color(QPalette::Window);
    const bool dark = windowColor.lightness() < 128;
    QColor material = windowColor;
    material.setAlphaF(0.94F);
    const QString iconSource =
        QGuiApplication::windowIcon().isNull() ? QString() : u"image://veltonotificationicon/app"_s;

    QObject* root = component.createWithInitialProperties({
        {u"displayModel"_s, QVariant::fromValue<QObject*>(displayModel.get())},
        {u"actions"_s, QVariant::fromValue<QObject*>(actions)},
        {u"dark"_s, dark},
        {u"materialColor"_s, material},
        {u"fontFamily"_s, BreakViewModel::roundedFontFamily()},
        {u"iconSource"_s, QUrl(iconSource)},
    });
    auto* card = qobject_cast<QQuickItem*>(root);
    if (!card) {
        delete root;
        delete window;
        return nullptr;
    }
    card->setParent(window);
    // The actions hold the model; they go after the card, so no binding reads a model that is gone.
    actions->setParent(card);
    QQmlEngine::setObjectOwnership(displayModel.get(), QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(actions, QQmlEngine::CppOwnership);

    auto* host = new PreBreakNotificationHostingView(card, onDismiss, window->contentItem());
    host->setParent(window);
    host->setSize(QSizeF(cardWidth, cardHeight));
    host->setReduceMotion(reduceMotion());
    host->setNaturalScrolling(naturalScrolling());
    return window;
}

void InAppNotificationWindowPresenter::show(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel,
                                            std::function<void()> onBreakNow, std::function<void(double)> onPause,
                                            std::function<void()> onSkip, std::function<void()> onDismiss)
{
    if (m_panel)
        closeAtOnce(std::exchange(m_panel, nullptr));

    // The desktop's main screen, where the user is working.
    QScreen* screen = mainScreen();
    if (screen == nullptr)
        return;
    const QRect frame = finalFrame(screen->availableGeometry());
    const bool reduce = reduceMotion();

    QQuickWindow* window =
        makePanel(std::move(displayModel), std::move(onBreakNow), std::move(onPause), std::move(onSkip), onDismiss);
    if (!window)
        return;
    PreBreakNotificationHostingView* host = hostingView(window);
    QQuickItem* card = host->rootView();
    window->setScreen(screen);
    window->setGeometry(frame);
    card->setX(reduce ? 0 : -NotificationMotion::slideDistance);
    card->setOpacity(0);
    // Where the compositor offers layers, the top layer at the output's top left, kept clear of panels and
    // never given the keyboard: what the user types next still goes where it went.
    bool placed = false;
    if (LayerShell::isAvailable()) {
        const Qt::WindowFlags ordinary = window->flags();
        window->setFlags(ordinary | Qt::BypassWindowManagerHint);
        const QRect area = screen->availableGeometry();
        placed = LayerShell::place(window, screen,
                                   {LayerShell::Layer::Top, Qt::TopEdge | Qt::LeftEdge,
                                    QMargins(frame.left() - area.left(), frame.top() - area.top(), 0, 0), frame.size(),
                                    false, 0});
        if (!placed) {
            window->destroy();
            window->setFlags(ordinary);
        }
    }
    if (!placed) {
        window->create();
        applyNotificationWindowHints(window);
    }
    m_panel = window;
    window->show();
    window->raise();
    host->animateContent(0, 1,
                         reduce ? NotificationMotion::showReducedMilliseconds : NotificationMotion::showMilliseconds,
                         NotificationMotion::arrivalCurve());
    // The next card uses what the desktop says by then.
    if (m_desktop)
        m_desktop->refresh();
}

void InAppNotificationWindowPresenter::hide()
{
    QPointer<InAppNotificationWindowPresenter> self(this);
    QMetaObject::invokeMethod(
        this,
        [self] {
            if (self)
                self->hideNow();
        },
        Qt::QueuedConnection);
}

void InAppNotificationWindowPresenter::hideNow()
{
    QQuickWindow* window = m_panel;
    PreBreakNotificationHostingView* host = hostingView(window);
    // A card already on its way out keeps its one fade.
    if (!window || !host || !host->rootView() || host->isLeaving())
        return;
    host->setLeaving();
    const bool reduce = reduceMotion();
    const double targetX = host->rootView()->x() - (reduce ? 0 : NotificationMotion::slideDistance);
    QPointer<QQuickWindow> leaving(window);
    QPointer<InAppNotificationWindowPresenter> self(this);
    host->animateContent(targetX, 0,
                         reduce ? NotificationMotion::hideReducedMilliseconds : NotificationMotion::hideMilliseconds,
                         NotificationMotion::easeOut(), [self, leaving] {
                             if (!leaving)
                                 return;
                             // Only this card goes; one shown meanwhile stays.
                             if (self && self->m_panel == leaving)
                                 self->m_panel = nullptr;
                             leaving->hide();
                             leaving->deleteLater();
                         });
}

void InAppNotificationWindowPresenter::releaseBetweenCards()
{
    if (!m_engine || !findChildren<QQuickWindow*>(Qt::FindDirectChildrenOnly).isEmpty())
        return;
    m_engine.reset();
    returnFreedMemoryToSystem();
}

void InAppNotificationWindowPresenter::closeAtOnce(QQuickWindow* window)
{
    if (!window)
        return;
    if (PreBreakNotificationHostingView* host = hostingView(window)) {
        // Its fade must not finish later and touch the card that replaces it.
        if (QAbstractAnimation* running = host->runningAnimation()) {
            running->disconnect();
            running->stop();
        }
    }
    window->hide();
    window->deleteLater();
}

} // namespace velto
