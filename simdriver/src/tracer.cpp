#include "tracer.h"

#include "driversettings/debugcategories.h"
#include "driversettings/driverservicesettings.h"
#include "driversettings/drivertracefiles.h"

#include <cirro_api.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <cstdio>

Q_DECLARE_LOGGING_CATEGORY(lcSimDriver)

namespace sim {

namespace {

QString serviceName(TraceService service)
{
    return QLatin1String(service == TraceService::Eth ? DriverServiceSettings::ethService
                                                      : DriverServiceSettings::usbService);
}

bool append(const QString& path, const QByteArray& line)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Append) && file.write(line) == line.size();
}

} // namespace

std::string hexNumber(std::uint32_t value)
{
    char text[12];
    std::snprintf(text, sizeof text, "0x%x", value);
    return text;
}

std::string outcome(const Result& result)
{
    return result.ok() ? "ok" : "failed with " + std::to_string(result.code) + ": " + result.text;
}

TraceService serviceOfDevice(std::uint32_t deviceId)
{
    return deviceId >= PV_ETH_DEVICE_FIRST && deviceId < PV_SDK_DEVICE_FIRST ? TraceService::Eth : TraceService::Usb;
}

void Tracer::configure(std::uint64_t usbMask, std::uint64_t ethMask)
{
    std::lock_guard lock(m_mutex);
    m_masks[0] = usbMask;
    m_masks[1] = ethMask;
    if (usbMask == 0 && ethMask == 0)
        return;
    m_directory = DriverTraceFiles::directory();
    if (!DriverTraceFiles::makePrivateDirectory(m_directory)) {
        qCWarning(lcSimDriver, "no trace lines: %s is not a directory of this user",
                  qUtf8Printable(m_directory));
        m_directory.clear();
    }
}

void Tracer::write(TraceService service, int category, const std::string& text)
{
    const QString name = serviceName(service);
    const QByteArray line = (QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz"))
                             + QLatin1Char(' ') + name + QStringLiteral(" [")
                             + QLatin1String(DebugCategories::name(category)) + QStringLiteral("] "))
                                .toUtf8()
                            + QByteArray::fromStdString(text) + '\n';
    std::lock_guard lock(m_mutex);
    if (m_directory.isEmpty())
        return;
    const QString path = DriverTraceFiles::filePath(m_directory, name);
    const qint64 size = QFileInfo(path).size();
    if (size > 0 && size + line.size() > DriverTraceFiles::rotateBytes) {
        const QString previous = DriverTraceFiles::previousFilePath(m_directory, name);
        QFile::remove(previous);
        QFile::rename(path, previous);
    }
    // The directory may have gone since the masks were read.
    if (!append(path, line) && DriverTraceFiles::makePrivateDirectory(m_directory))
        append(path, line);
}

} // namespace sim
