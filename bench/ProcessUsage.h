#pragma once

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <ctime>
#include <sys/resource.h>
#include <vector>

// What this process costs, read the way the benchmarks report it.
namespace bench {

// Proportional set size in kilobytes; -1 when /proc cannot tell.
inline qint64 pssKb()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Pss:"))
            return line.mid(4).trimmed().split(' ').first().toLongLong();
    }
    return -1;
}

// User and system CPU time so far, in seconds.
inline double cpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// This process's CPU time so far, in milliseconds, at the clock's full resolution.
inline double processCpuMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

// The value below which that fraction of the samples lies (0.5: the median).
inline double percentile(std::vector<double> values, double fraction)
{
    std::sort(values.begin(), values.end());
    return values[size_t(fraction * double(values.size() - 1))];
}

} // namespace bench
