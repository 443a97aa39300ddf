#pragma once

#include <QByteArray>
#include <QFile>

#include <sys/resource.h>

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

} // namespace bench
