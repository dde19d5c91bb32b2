#pragma once

#include "driver/debugmask.h"

#include "common/result.h"

#include <QCoreApplication>
#include <QStringList>

// The recent debug output of a camera driver, for a person to read: the trace
// files of the simulated driver, or on a host with the real drivers the
// journal of the driver's service and the kernel log.
class DriverOutput final
{
    Q_DECLARE_TR_FUNCTIONS(DriverOutput)

public:
    using Driver = DebugMask::Driver;

    struct Recent
    {
        // A failure, with every reason, when no source could be read.
        Result result;
        // Where the lines come from, translated.
        QString source;
        // Oldest first.
        QStringList lines;
        // Sources that could not be read while others could, each with the reason.
        QStringList problems;
    };

    // Whether the camera API library is the simulated driver.
    static bool isSimulated();

    // One sentence: where this driver's output goes on this host.
    static QString destination(Driver driver);
    // The last maxLines lines of the driver's output. Waits for host programs
    // (the journal, the kernel log) for a couple of seconds at most.
    static Recent recent(Driver driver, int maxLines = 200);
};
