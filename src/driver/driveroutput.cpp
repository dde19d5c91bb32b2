#include "driver/driveroutput.h"

#include "driver/hostdriverlog.h"
#include "driver/tracefiletail.h"

#include "common/simulateddriver.h"
#include "driversettings/drivertracefiles.h"

#include <pvsim.h>

bool DriverOutput::isSimulated()
{
    return SimulatedDriver::lookUp<decltype(&pvsim_GetState)>("pvsim_GetState") != nullptr;
}

QString DriverOutput::destination(Driver driver)
{
    const QString service = DebugMask::service(driver);
    if (!isSimulated())
        return HostDriverLog::destination(service);
    return tr("The simulated driver writes the trace lines of %1 to %2.")
        .arg(service, DriverTraceFiles::filePath(DriverTraceFiles::directory(), service));
}

DriverOutput::Recent DriverOutput::recent(Driver driver, int maxLines)
{
    maxLines = qMax(1, maxLines);
    const QString service = DebugMask::service(driver);
    if (!isSimulated())
        return HostDriverLog::recent(service, maxLines);
    const QString directory = DriverTraceFiles::directory();
    const QString file = DriverTraceFiles::filePath(directory, service);
    TraceFileTail::Lines tail =
        TraceFileTail::read(file, DriverTraceFiles::previousFilePath(directory, service), maxLines);
    Recent recent;
    recent.result = tail.result;
    recent.source = tr("the trace file %1").arg(file);
    recent.lines = std::move(tail.lines);
    return recent;
}
