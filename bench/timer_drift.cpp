// Runs the real work timer for a while and reports how far the counted seconds drift from the monotonic
// clock, extrapolated to a 20-minute work interval. Usage: bench_timer_drift [seconds, default 120]
#include "InMemoryUserDefaults.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"
#include "settings/UserDefaultsStore.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHash>

#include <cmath>
#include <cstdio>

namespace {} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const int seconds = argc > 1 ? std::max(5, QByteArray(argv[1]).toInt()) : 120;

    InMemoryUserDefaults store;
    velto::SettingsManager settings(store, nullptr);
    velto::BreakConfiguration configuration = settings.breakConfiguration();
    configuration.workInterval = 1.0e6; // long enough that no break interrupts the measurement
    configuration.delayWhileTyping = false;
    settings.setBreakConfiguration(configuration);
    velto::BreakManager manager(store);
    manager.setSettingsManager(&settings);

    QElapsedTimer clock;
    qint64 counted = 0;
    double worstLateness = 0;
    manager.onTimerUpdate = [&](double) {
        ++counted;
        const double lateness = static_cast<double>(clock.nsecsElapsed()) / 1e9 - static_cast<double>(counted);
        worstLateness = std::max(worstLateness, std::abs(lateness));
        if (counted == seconds) {
            const double drift = static_cast<double>(clock.nsecsElapsed()) / 1e9 - static_cast<double>(counted);
            const double per20Minutes = drift * 1200.0 / static_cast<double>(counted);
            std::printf("counted %lld ticks in %.4f s of monotonic time\n", static_cast<long long>(counted),
                        static_cast<double>(clock.nsecsElapsed()) / 1e9);
            std::printf("drift %+.4f s over %d s; %+.3f s per 20 minutes (target within 0.2 s); "
                        "worst single-tick offset %.4f s\n",
                        drift, seconds, per20Minutes, worstLateness);
            QCoreApplication::exit(std::abs(per20Minutes) <= 0.2 ? 0 : 1);
        }
    };
    clock.start();
    manager.start();
    return QCoreApplication::exec();
}
