#include "driver/driveroutput.h"

#include "driver/hostdriverlog.h"
#include "driver/tracefiletail.h"

#include "common/simulateddriver.h"
#include "driversettings/driverservicesettings.h"
#include "driversettings/drivertracefiles.h"

#include <pvsim.h>

QString DriverOutput::service(Driver driver)
{
    return QLatin1String(driver == Driver::Eth ? DriverServiceSettings::ethService
                                               : DriverServiceSettings::usbService);
}

bool DriverOutput::isSimulated()
{
    return SimulatedDriver::lookUp<decltype(&pvsim_GetState)>("pvsim_GetState") != nullptr;
}

QString DriverOutput::destination(Driver driver)
{
    if (!isSimulated())
        return HostDriverLog::destination(service(driver));
    return tr("The simulated driver writes the trace lines of %1 to %2.")
        .arg(service(driver), DriverTraceFiles::filePath(DriverTraceFiles::directory(), service(driver)));
}

DriverOutput::Recent DriverOutput::recent(Driver driver, int maxLines)
{
    maxLines = qMax(1, maxLines);
    if (!isSimulated())
        return HostDriverLog::recent(service(driver), maxLines);
    const QString directory = DriverTraceFiles::directory();
    const QString file = DriverTraceFiles::filePath(directory, service(driver));
    TraceFileTail::Lines tail =
        TraceFileTail::read(file, DriverTraceFiles::previousFilePath(directory, service(driver)), maxLines);
    Recent recent;
    recent.result = tail.result;
    recent.source = tr("the trace file %1").arg(file);
    recent.lines = std::move(tail.lines);
    return recent;
}
