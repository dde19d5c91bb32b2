#include "sysinfo/systeminformation.h"

#include <QFile>
#include <QSysInfo>

#include <sched.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace {

std::vector<int> affinity()
{
    std::vector<int> processors;
    cpu_set_t set;
    CPU_ZERO(&set);
    if (::sched_getaffinity(0, sizeof set, &set) != 0)
        return processors;
    for (int cpu = 0; cpu < CPU_SETSIZE; ++cpu) {
        if (CPU_ISSET(cpu, &set))
            processors.push_back(cpu);
    }
    return processors;
}

} // namespace

SystemInformation SystemInformation::read(const QString& osReleasePath)
{
    SystemInformation info;
    utsname system{};
    if (::uname(&system) == 0) {
        info.buildNumber = QString::fromUtf8(system.release);
        std::tie(info.majorVersion, info.minorVersion) = kernelVersion(info.buildNumber);
        info.platformId = QString::fromUtf8(system.sysname);
        info.processorArchitecture = architectureCode(QString::fromUtf8(system.machine));
        info.hostName = QString::fromUtf8(system.nodename);
    }
    info.activeProcessorMask = processorListText(affinity());
    info.numberOfProcessors = int(::sysconf(_SC_NPROCESSORS_ONLN));
    QFile osRelease(osReleasePath);
    if (osRelease.open(QIODevice::ReadOnly))
        info.csdVersion = prettyName(osRelease.readAll());
    info.buildArchitecture = QSysInfo::buildCpuArchitecture();
    return info;
}
