#include "BreakWindow.h"

#include "BackgroundImage.h"
#include "BreakViewModel.h"
#include "DesktopPicture.h"
#include "FreedMemory.h"
#include "LayerShell.h"
#include "MainScreen.h"
#include "scheduling/BreakEffects.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QGuiApplication>
#include <QMutex>
#include <QPropertyAnimation>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickImageProvider>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QScreen>
#include <QSurfaceFormat>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace velto {

// The decoded background of the current break, handed to every window's view by URL. The view's image
// loading may ask from another thread, hence the lock.
class BackgroundImageProvider final : public QQuickImageProvider {
public:
    BackgroundImageProvider()
        : QQuickImageProvider(QQuickImageProvider::Image)
    {}

    QUrl setImage(const QImage& image)
    {
        QMutexLocker locker(&m_mutex);
        m_image = image;
        ++m_generation;
        if (image.isNull())
            return {};
        return QUrl(u"image://veltobackground/%1"_s.arg(m_generation));
    }

    QImage requestImage(const QString&, QSize* size, const QSize&) override
    {
        QMutexLocker locker(&m_mutex);
        if (size)
            *size = m_image.size();
        return m_image;
    }

private:
    QMutex m_mutex;
    QImage m_image;
    quint64 m_generation = 0;
};

QList<QScreen*> breakTargetScreens(ScreenDisplayMode mode, const QList<QScreen*>& screens, QScreen* primary)
{
    if (mode == ScreenDisplayMode::AllScreens)
        return screens;
    if (primary != nullptr)
        return {primary};
    if (!screens.isEmpty())
        return {screens.first()};
    return {};
}

BreakWindow::BreakWindow(SettingsManager* settings, BreakManager* breakManager, SoundPlaying* sounds,
                         ScreenLocking* lock, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_breakManager(breakManager)
    , m_sounds(sounds)
    , m_lock(lock)
{}

BreakWindow::~BreakWindow()
{
    // Windows still on screen or fading belong to the engine's components; they go before the engine does.
    for (QQuickWindow* window : findChildren<QQuickWindow*>()) {
        window->disconnect(this);
        delete window;
    }
    m_windows.clear();
}

void BreakWindow::useSoftwareRendering()
{
    // Asking again once a scene graph exists only draws a warning from Qt.
    static bool chosen = false;
    if (!chosen && qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    chosen = true;
}

QQmlEngine& BreakWindow::engine()
{
    if (!m_engine) {
        useSoftwareRendering();
        m_engine = makeWindowEngine();
        m_images = new BackgroundImageProvider;
        m_engine->addImageProvider(u"veltobackground"_s, m_images);
    }
    return *m_engine;
}

void BreakWindow::prepareBackgroundImage()
{
    engine();
    QString path;
    if (m_settings) {
        const BreakAppearance& appearance = m_settings->breakAppearance();
        if (appearance.backgroundType == BackgroundType::CustomImage)
            path = appearance.customImagePathOrEmpty();
        else if (appearance.backgroundType == BackgroundType::SystemWallpaper)
            path = desktopPicturePath();
    }
    m_imageSource = m_images->setImage(loadBackgroundImage(path));
}

QQuickWindow* BreakWindow::makeBreakWindow(QScreen* screen, BreakType breakType)
{
    QQmlEngine& qml = engine();
    static const QUrl source(u"qrc:/Velto/Overlay/overlay/BreakView.qml"_s);
    QQmlComponent component(&qml, source, QQmlComponent::PreferSynchronous);
    if (!component.isReady()) {
        qWarning("velto: the break screen cannot be built: %s", qPrintable(component.errorString()));
        return nullptr;
    }

    auto* window = new QQuickWindow;
    // Override-redirect on X11: the window manager neither decorates nor stacks it, so it lies above docks
    // and panels, on every workspace, and stays out of taskbars and pagers. Elsewhere (Wayland) a frameless
    // window kept on top and shown full screen is the most a client may ask for.
    // Where the compositor offers layers, the overlay layer: above panels and docks, with the keyboard.
    const bool layered = LayerShell::isAvailable();
    Qt::WindowFlags flags = Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    if (layered || QGuiApplication::platformName() == u"xcb"_s)
        flags |= Qt::BypassWindowManagerHint;
    else
        flags |= Qt::Tool;
    window->setFlags(flags);
    // What the window list and Velto's GNOME Shell extension know it by, so the same in every language.
    window->setTitle(u"Velto Break"_s);
    if (QGuiApplication::platformName().startsWith(u"wayland"_s)) {
        QSurfaceFormat format = window->format();
        format.setAlphaBufferSize(8);
        window->setFormat(format);
        window->setColor(Qt::transparent);
    } else {
        window->setColor(Qt::black);
    }
    if (screen) {
        window->setScreen(screen);
        window->setGeometry(screen->geometry());
    }
    if (layered &&
        !LayerShell::place(window, screen, {LayerShell::Layer::Overlay, LayerShell::allEdges(), {}, {}, true})) {
        // Not placed after all: the ordinary route, a window kept on top and shown full screen.
        window->destroy();
        window->setFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::Tool);
    }

    auto* model = new BreakViewModel(m_settings, m_breakManager, breakType, m_imageSource);
    model->setDelayedAction(m_delayedAction);
    QObject* root = component.createWithInitialProperties({{u"viewModel"_s, QVariant::fromValue(model)}});
    auto* item = qobject_cast<QQuickItem*>(root);
    if (!item) {
        delete root;
        delete model;
        delete window;
        return nullptr;
    }
    // The view goes before its model when the window is destroyed, so no binding reads a deleted model.
    item->setParent(window);
    model->setParent(window);
    item->setParentItem(window->contentItem());
    item->setSize(window->size());
    connect(window, &QWindow::widthChanged, item, [item, window] { item->setSize(window->size()); });
    connect(window, &QWindow::heightChanged, item, [item, window] { item->setSize(window->size()); });
    return window;
}

void BreakWindow::show(BreakType breakType)
{
    engine();
    prepareBackgroundImage();
    const ScreenDisplayMode mode =
        m_settings ? m_settings->breakAppearance().screenDisplayMode : ScreenDisplayMode::AllScreens;
    for (QScreen* screen : breakTargetScreens(mode, QGuiApplication::screens(),
                                              mode == ScreenDisplayMode::AllScreens ? nullptr : mainScreen())) {
        QQuickWindow* window = makeBreakWindow(screen, breakType);
        if (!window)
            continue;
        // Owned by the controller, yet a top-level window: no QWindow parent.
        static_cast<QObject*>(window)->setParent(this);
        fadeTarget(window)->setProperty("opacity", 0.0);
        if (QGuiApplication::platformName() == u"xcb"_s || QGuiApplication::platformName() == u"offscreen"_s ||
            LayerShell::isPlaced(window))
            window->show();
        else
            window->showFullScreen();
        window->raise();
        if (auto* model = window->findChild<BreakViewModel*>())
            model->start();
        auto* fade = new QPropertyAnimation(fadeTarget(window), "opacity", window);
        fade->setDuration(fadeMilliseconds);
        fade->setStartValue(0.0);
        fade->setEndValue(1.0);
        fade->setEasingCurve(QEasingCurve::InOutQuad);
        fade->start(QAbstractAnimation::DeleteWhenStopped);
        m_windows.append(window);
    }
    if (m_settings)
        playBreakStartEffects(*m_settings, m_sounds, m_lock);
}

void BreakWindow::hide()
{
    if (m_settings)
        playBreakEndEffects(*m_settings, m_sounds);
    const QList<QQuickWindow*> leaving = std::exchange(m_windows, {});
    for (QQuickWindow* window : leaving)
        fadeOut(window);
}

QObject* BreakWindow::fadeTarget(QQuickWindow* window)
{
    // Wayland has no window opacity: there the content fades over a transparent window.
    if (QGuiApplication::platformName().startsWith(u"wayland"_s))
        return window->contentItem();
    return window;
}

void BreakWindow::fadeOut(QQuickWindow* window)
{
    // A fade-in still running would fight the fade-out.
    for (QPropertyAnimation* running : window->findChildren<QPropertyAnimation*>())
        running->stop();
    QObject* target = fadeTarget(window);
    auto* fade = new QPropertyAnimation(target, "opacity", window);
    fade->setDuration(fadeMilliseconds);
    fade->setStartValue(target->property("opacity"));
    fade->setEndValue(0.0);
    fade->setEasingCurve(QEasingCurve::InOutQuad);
    // The window finishes by itself, whatever show or hide comes next.
    connect(fade, &QAbstractAnimation::finished, window, [window] {
        const auto finish = [window] {
            window->hide();
            window->deleteLater();
        };
        // The renderer frees a texture only when it draws, so a picture let go after the last frame would be
        // kept until the next break. Faded out by now, the window draws once more without it, then goes.
        QQuickItem* picture = window->findChild<QQuickItem*>(u"backgroundImage"_s);
        if (!picture || picture->property("source").toUrl().isEmpty() || !window->isExposed()) {
            finish();
            return;
        }
        picture->setProperty("source", QUrl());
        connect(window, &QQuickWindow::frameSwapped, window, finish, Qt::SingleShotConnection);
        // A window the system no longer draws still goes.
        QTimer::singleShot(lastFrameMilliseconds, window, finish);
        window->update();
    });
    ++m_fadingWindows;
    connect(window, &QObject::destroyed, this, [this] {
        // Once the last one has gone, and after the deletions its teardown has queued: freed before that,
        // the memory would still be in use.
        if (--m_fadingWindows == 0)
            QTimer::singleShot(0, this, &BreakWindow::releaseBetweenBreaks);
    });
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

void BreakWindow::releaseBetweenBreaks()
{
    if (m_fadingWindows > 0 || !m_windows.isEmpty() || !m_engine)
        return;
    // The next break is minutes away and builds its windows afresh; the engine, its compiled views and a
    // decoded wallpaper kept until then would cost megabytes for nothing. Cold, a break still shows in
    // tens of milliseconds.
    m_imageSource = {};
    m_images = nullptr;
    m_engine.reset();
    returnFreedMemoryToSystem();
}

} // namespace velto
