// The break overlay on two screens with the software renderer, off screen (2 × 1920×1080) unless
// QT_QPA_PLATFORM says otherwise, taken from the windows module as Velto takes it: time from show() to the
// first frame of every window for the first break (the module, Qt Quick and the engine loaded on the way) and
// for a later one (engine rebuilt, the windows' code faulted back in), the memory a break adds (PSS), the CPU a
// running break costs while the ring glides, and the memory left once the windows have gone. With --image the
// break shows a 3840×2160 custom image instead of the default background, as a wallpaper would.
#include "ProcessUsage.h"
#include "VeltoWindows.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"
#include "settings/UserDefaultsStore.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QLibrary>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace velto;
using bench::cpuSeconds;
using bench::pssKb;

namespace {

class MemoryStore final : public UserDefaultsStore {
public:
    [[nodiscard]] QVariant read(const QString& key) const override { return m_values.value(key); }
    void write(const QString& key, const QVariant& value) override { m_values.insert(key, value); }
    void remove(const QString& key) override { m_values.remove(key); }

private:
    QHash<QString, QVariant> m_values;
};

// Counts first frames by the windows' frameSwapped signal, reached by name: linking Qt Quick here would load
// it before the module, unlike in Velto.
class FrameCounter final : public QObject {
    Q_OBJECT

public:
    int pending = 0;
    QEventLoop loop;

public Q_SLOTS:
    void frameSwapped()
    {
        QObject::disconnect(sender(), SIGNAL(frameSwapped()), this, SLOT(frameSwapped()));
        if (--pending == 0)
            loop.quit();
    }
};

// Milliseconds from show() until every window has drawn its first frame.
double timeShow(BreakOverlay& overlay)
{
    QElapsedTimer clock;
    clock.start();
    overlay.show(BreakType::Short);
    FrameCounter frames;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && window->inherits("QQuickWindow")) {
            QObject::connect(window, SIGNAL(frameSwapped()), &frames, SLOT(frameSwapped()));
            ++frames.pending;
        }
    }
    QTimer::singleShot(5000, &frames.loop, &QEventLoop::quit);
    if (frames.pending > 0)
        frames.loop.exec();
    return double(clock.nsecsElapsed()) / 1e6;
}

void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir dir;
    const QString config = dir.filePath(u"screens.json"_s);
    QFile file(config);
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    file.write(R"({"screens": [{"name": "a", "x": 0, "y": 0, "width": 1920, "height": 1080},
                              {"name": "b", "x": 1920, "y": 0, "width": 1920, "height": 1080}]})");
    file.close();
    // Off screen by default; QT_QPA_PLATFORM=xcb measures on a real X server instead (two RandR monitors).
    const bool offscreen = qEnvironmentVariable("QT_QPA_PLATFORM", u"offscreen"_s).startsWith(u"offscreen");
    if (offscreen)
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.toLocal8Bit());
    // The offscreen platform cannot fade windows and says so on every step of every fade.
    static const QtMessageHandler log = qInstallMessageHandler(nullptr);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
        if (!message.startsWith(u"This plugin does not support") && log)
            log(type, context, message);
    });
    QGuiApplication app(argc, argv);

    MemoryStore store;
    SettingsManager settings(store, nullptr);
    BreakConfiguration configuration = settings.breakConfiguration();
    configuration.shortBreakDuration = 60;
    settings.setBreakConfiguration(configuration);
    const bool withImage = QCoreApplication::arguments().contains(u"--image"_s);
    if (withImage) {
        const QString picture = dir.filePath(u"wallpaper.png"_s);
        QImage image(3840, 2160, QImage::Format_RGB32);
        image.fill(QColor(40, 90, 140));
        if (!image.save(picture))
            return 1;
        BreakAppearance appearance = settings.breakAppearance();
        appearance.backgroundType = BackgroundType::CustomImage;
        appearance.customImagePath = picture;
        settings.setBreakAppearance(appearance);
    }
    BreakManager breaks(store);
    breaks.setSettingsManager(&settings);
    const qint64 pssBefore = pssKb();
    breaks.takeBreakNow();
    QElapsedTimer loading;
    loading.start();
    QLibrary module(QStringLiteral(VELTO_WINDOWS_MODULE));
    module.setLoadHints(QLibrary::PreventUnloadHint);
    auto entry = reinterpret_cast<VeltoWindows* (*)()>(module.resolve(veltoWindowsEntryPoint));
    if (!entry) {
        std::fprintf(stderr, "cannot load %s\n", qPrintable(module.errorString()));
        return 1;
    }
    std::unique_ptr<BreakOverlay> overlay = entry()->makeBreakOverlay(&settings, &breaks, nullptr, nullptr);
    const double load = double(loading.nsecsElapsed()) / 1e6;
    const double first = load + timeShow(*overlay);
    const qint64 pssShown = pssKb();
    overlay->hide();
    // The fade, the windows' deferred deletion, and the engine and code let go after them.
    wait(1500);
    const qint64 pssBetween = pssKb();
    const double later = timeShow(*overlay);

    // Ten seconds of a running break: the scheduler ticks once a second and the ring glides in between.
    const double cpuStart = cpuSeconds();
    QElapsedTimer wall;
    wall.start();
    wait(10000);
    const double cpuShare = (cpuSeconds() - cpuStart) / (double(wall.nsecsElapsed()) / 1e9);
    const qint64 pssRunning = pssKb();
    overlay->hide();
    wait(1500);
    const qint64 pssGone = pssKb();

    std::printf("overlay on %d screens (%s, software renderer, %s)\n", int(QGuiApplication::screens().size()),
                qPrintable(QGuiApplication::platformName()),
                withImage ? "3840x2160 custom image" : "default background");
    std::printf("  first break, module load (%.1f ms) and show to first frame: %.1f ms\n", load, first);
    std::printf("  a later break, show to first frame: %.1f ms  (target <= 150 ms)\n", later);
    std::printf("  PSS before: %lld kB, after first show: %lld kB (+%lld kB), between breaks: %lld kB, during the "
                "break: %lld kB\n",
                pssBefore, pssShown, pssShown - pssBefore, pssBetween, pssRunning);
    std::printf("  PSS once the windows have gone: %lld kB (%+lld kB over before)\n", pssGone, pssGone - pssBefore);
    std::printf("  CPU during the break: %.1f %% of one core  (target <= 5 %%)\n", cpuShare * 100.0);
    return 0;
}

#include "overlay_show.moc"
