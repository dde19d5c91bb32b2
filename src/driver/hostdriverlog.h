#pragma once

#include "driver/driveroutput.h"

#include <chrono>

// The output of the real camera drivers on this host: the journal of the
// driver's service unit and the kernel log lines of its kernel module, which
// bears the service's name. Read through journalctl, or dmesg where there is
// no journalctl; no program may keep the caller waiting beyond the time-out.
class HostDriverLog final
{
    Q_DECLARE_TR_FUNCTIONS(HostDriverLog)

public:
    static QString destination(const QString& service);
    static DriverOutput::Recent recent(const QString& service, int maxLines,
                                       std::chrono::milliseconds timeout = std::chrono::seconds(2));
};
