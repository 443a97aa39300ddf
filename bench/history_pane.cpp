// How long the History pane takes to open over a year of history (~50,000 events in a real history file): from
// choosing it in the settings window's sidebar to the first frame that shows its figures, the first time (its QML
// compiled and created) and again after another pane. The settings window is already open, as it is when a user
// clicks the sidebar. Run on the offscreen platform; usage: bench_history_pane [DAYS, default 365]
#include "HistorySample.h"
#include "InMemoryUserDefaults.h"
#include "SettingsWindowController.h"
#include "UpdateAvailabilityModel.h"
#include "history/HistoryRecorder.h"
#include "history/SqliteHistoryStore.h"
#include "settings/SettingsManager.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace velto;

namespace {

// Milliseconds from choosing the pane to the first frame after its figures are in.
double openHistory(QQuickWindow* window, int tab)
{
    QElapsedTimer timer;
    bool swapped = false;
    bool loaded = false;
    const QMetaObject::Connection frames =
        QObject::connect(window, &QQuickWindow::frameSwapped, window, [&] { swapped = loaded; });
    timer.start();
    window->setProperty("selectedTab", tab);
    auto* model = window->property("historyModel").value<QObject*>();
    QTest::qWaitFor(
        [&] {
            loaded = loaded || !model->property("loading").toBool();
            return swapped;
        },
        5000);
    QObject::disconnect(frames);
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const int days = argc > 1 ? std::max(1, QByteArray(argv[1]).toInt()) : 365;
    QTemporaryDir home;
    const QDate today = QDate::currentDate();
    SqliteHistoryStore store(home.filePath(u"history.sqlite"_s));
    QRandomGenerator random(20261125);
    int events = 0;
    for (int day = days - 1; day >= 0; --day)
        events += writeSampleDay(store, today.addDays(-day), random);
    (void)store.days(today, today); // waits for the writes

    InMemoryUserDefaults defaults;
    SettingsManager settings(defaults, nullptr);
    HistoryRecorder recorder(store, &defaults);
    UpdateAvailabilityModel updates;
    SettingsWindowController::Collaborators collaborators;
    collaborators.updates = &updates;
    collaborators.history = &recorder;
    SettingsWindowController controller(collaborators);
    controller.showSettings(&settings, nullptr);
    QQuickWindow* window = controller.settingsWindow();
    if (!window || !QTest::qWaitForWindowExposed(window))
        return 1;
    QTest::qWait(300);

    const int historyTab = 5;
    const double first = openHistory(window, historyTab);
    QList<double> again;
    for (int run = 0; run < 5; ++run) {
        window->setProperty("selectedTab", 0);
        QTest::qWait(200);
        again.append(openHistory(window, historyTab));
    }
    std::sort(again.begin(), again.end());
    std::printf("History pane over %d events (%d days): first open %.1f ms, again median %.1f ms\n", events, days,
                first, again.at(again.size() / 2));
    return 0;
}
