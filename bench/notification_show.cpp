// The pre-break card with the software renderer, off screen unless QT_QPA_PLATFORM says otherwise: time from
// show() to the card's first frame with a cold and with a warm QML engine, the memory the first card adds (PSS),
// and the CPU the card costs over its ten seconds on screen while its countdown ticks.
#include "BreakWindow.h"
#include "InAppNotificationWindowPresenter.h"
#include "ProcessUsage.h"
#include "notification/PreBreakNotificationDisplayModel.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace velto;
using bench::cpuSeconds;
using bench::pssKb;

namespace {

// Milliseconds from show() to the first frame of the new card.
double timeShow(InAppNotificationWindowPresenter& presenter, std::shared_ptr<PreBreakNotificationDisplayModel> model)
{
    QElapsedTimer clock;
    clock.start();
    presenter.show(std::move(model), {}, {}, {}, {});
    QQuickWindow* panel = presenter.panel();
    if (!panel)
        return -1;
    QEventLoop loop;
    QObject::connect(panel, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    QTimer::singleShot(5000, &loop, &QEventLoop::quit);
    loop.exec();
    return double(clock.nsecsElapsed()) / 1e6;
}

void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    BreakWindow::useSoftwareRendering();
    QGuiApplication app(argc, argv);
    InAppNotificationWindowPresenter presenter([] { return false; });

    const qint64 before = pssKb();
    const double cold = timeShow(presenter, std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Short, 60));
    wait(400);
    const qint64 after = pssKb();

    QList<double> warm;
    for (int i = 0; i < 20; ++i)
        warm.append(timeShow(presenter, std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Long, 60)));
    std::sort(warm.begin(), warm.end());

    // Ten seconds on screen, the countdown moving once a second, as the scheduler drives it.
    auto model = std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Short, 60);
    timeShow(presenter, model);
    wait(400);
    const double cpuBefore = cpuSeconds();
    QElapsedTimer clock;
    clock.start();
    for (int second = 59; second >= 50; --second) {
        wait(1000);
        model->setTimeRemaining(second);
    }
    const double cpu = cpuSeconds() - cpuBefore;
    const double elapsed = double(clock.elapsed()) / 1000.0;
    presenter.hide();
    wait(400);

    std::printf("pre-break card, show to first frame: cold %.1f ms, warm median %.1f ms (max %.1f ms, 20 shows)\n",
                cold, warm[warm.size() / 2], warm.last());
    std::printf("PSS the first card adds (engine, QML, window): %lld kB\n", static_cast<long long>(after - before));
    std::printf("CPU while the card is up with a ticking countdown: %.2f %% of one core over %.1f s\n",
                100.0 * cpu / elapsed, elapsed);
    return 0;
}
