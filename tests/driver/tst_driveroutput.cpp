// The drivers' debug output on the simulated driver, end to end: a mask in a
// service's file, the driver's trace lines, and DriverOutput reading them back.
#include "driver/driveroutput.h"

#include "driversettings/debugcategories.h"
#include "driversettings/driverservicesettings.h"
#include "driversettings/drivertracefiles.h"

#include "simdriverfixture.h"

#include <QRegularExpression>
#include <QSettings>
#include <QtTest>

#include <functional>
#include <set>
#include <thread>

using Action = std::function<void()>;
Q_DECLARE_METATYPE(Action)
using Driver = DriverOutput::Driver;
Q_DECLARE_METATYPE(Driver)

namespace {

constexpr std::uint32_t usbCamera = 0;
constexpr std::uint32_t usbCameraInUse = 3;
constexpr std::uint32_t gigeCamera = 1000;

quint64 mask(std::initializer_list<int> bits)
{
    quint64 result = 0;
    for (int b : bits)
        result |= DebugCategories::bit(b);
    return result;
}

void openAndClose(std::uint32_t deviceId, std::uint32_t flags = 0)
{
    std::uint32_t handle = deviceId | PV_DEVICE_ID_FLAG | flags;
    QCOMPARE(pv_OpenCamera(&handle, nullptr), PV_OK);
    QCOMPARE(pv_CloseCamera(handle), PV_OK);
}

void open(std::uint32_t deviceId, std::int32_t expected)
{
    std::uint32_t handle = deviceId | PV_DEVICE_ID_FLAG;
    QCOMPARE(pv_OpenCamera(&handle, nullptr), expected);
}

void plugAndUnplug(const char* camera)
{
    std::uint32_t id = 0;
    QCOMPARE(pvsim_PlugCamera(camera, &id), PV_OK);
    QCOMPARE(pvsim_UnplugCamera(id), PV_OK);
}

QStringList lines(Driver driver)
{
    return DriverOutput::recent(driver, 100000).lines;
}

// "2026-11-23T14:31:02.123 cirro_usb [Device start/stop] open ..." -> "Device start/stop"
QString category(const QString& line)
{
    const int open = line.indexOf(QLatin1String(" ["));
    return line.mid(open + 2, line.indexOf(QLatin1String("] ")) - open - 2);
}

QStringList categories(const QStringList& lines)
{
    std::set<QString> found;
    for (const QString& line : lines)
        found.insert(category(line));
    return QStringList(found.begin(), found.end());
}

QStringList names(std::initializer_list<int> bits)
{
    QStringList result;
    for (int b : bits)
        result.append(QLatin1String(DebugCategories::name(b)));
    result.sort();
    return result;
}

} // namespace

class TestDriverOutput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void tracesExactlyTheEnabledCategories_data();
    void tracesExactlyTheEnabledCategories();
    void maskValues_data();
    void maskValues();
    void maskZeroStopsTheTrace();
    void rotationKeepsTheTailReadable();
    void concurrentCallsWriteWholeLines();

private:
    void setMask(const char* service, const QVariant& value);
    void setMasks(std::uint64_t usb, std::uint64_t eth);
    QString traceFile(const char* service) const;

    std::unique_ptr<QTemporaryDir> m_configRoot;
    std::unique_ptr<QTemporaryDir> m_runtime;
};

void TestDriverOutput::init()
{
    m_configRoot = std::make_unique<QTemporaryDir>();
    m_runtime = std::make_unique<QTemporaryDir>();
    QVERIFY(m_configRoot->isValid() && m_runtime->isValid());
    qputenv("CIRRO_CONFIG_ROOT", m_configRoot->path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", m_runtime->path().toLocal8Bit());
    QVERIFY(SimDriverFixture::reset());
}

void TestDriverOutput::cleanup()
{
    setMasks(0, 0);
    m_runtime.reset();
    m_configRoot.reset();
}

void TestDriverOutput::setMask(const char* service, const QVariant& value)
{
    DriverServiceSettings::open(QLatin1String(service))->setValue(QLatin1String(DebugCategories::maskValue), value);
}

void TestDriverOutput::setMasks(std::uint64_t usb, std::uint64_t eth)
{
    setMask(DriverServiceSettings::usbService, QVariant::fromValue<quint64>(usb));
    setMask(DriverServiceSettings::ethService, QVariant::fromValue<quint64>(eth));
    QCOMPARE(pv_FetchRegistryValues(), PV_OK);
}

QString TestDriverOutput::traceFile(const char* service) const
{
    return DriverTraceFiles::filePath(QDir(m_runtime->path()).filePath(QStringLiteral("cirro")),
                                      QLatin1String(service));
}

void TestDriverOutput::tracesExactlyTheEnabledCategories_data()
{
    QTest::addColumn<quint64>("usbMask");
    QTest::addColumn<quint64>("ethMask");
    QTest::addColumn<Action>("action");
    QTest::addColumn<QStringList>("usbCategories");
    QTest::addColumn<QStringList>("ethCategories");
    QTest::addColumn<QString>("expectedText");

    const quint64 all = ~quint64(0);
    const Action openCloseUsb = [] { openAndClose(usbCamera); };
    const Action openCloseGige = [] { openAndClose(gigeCamera); };
    QTest::newRow("USB open and close, start/stop only")
        << mask({4}) << all << openCloseUsb << names({4}) << QStringList() << "close device 0 (handle 0x";
    QTest::newRow("GigE open and close, start/stop and calls")
        << all << mask({4, 0}) << openCloseGige << QStringList() << names({0, 4})
        << "pv_CloseCamera(handle 0x";
    QTest::newRow("USB calls on, open and close")
        << mask({0}) << quint64(0) << openCloseUsb << names({0}) << QStringList() << "pv_OpenCamera(handle 0x8000): 0";
    QTest::newRow("starter firmware upload")
        << quint64(0) << mask({8}) << Action([] { openAndClose(gigeCamera, PV_OPEN_UPLOAD_STARTER_FIRMWARE); })
        << QStringList() << names({8}) << "starter firmware upload to device 1000 ended: ok";
    QTest::newRow("USB plug and unplug")
        << mask({2}) << all << Action([] { plugAndUnplug(R"({"kind": "usb"})"); }) << names({2}) << QStringList()
        << "removed";
    QTest::newRow("GigE plug and unplug")
        << all << mask({2})
        << Action([] { plugAndUnplug(R"({"kind": "eth", "adapter": "simnet0", "mac": "00:1c:c1:00:03:01"})"); })
        << QStringList() << names({2}) << "arrived";
    QTest::newRow("device list is driver-wide") << mask({21}) << mask({21}) << Action([] { SimDriverFixture::list(); })
                                                << names({21}) << QStringList() << "devices handed out";
    QTest::newRow("IP configuration of a GigE camera")
        << all << mask({44}) << Action([] {
               const std::uint32_t on = 1;
               QCOMPARE(pv_IpConfig(gigeCamera, nullptr, PV_IPCFG_SET_DHCP, const_cast<std::uint32_t*>(&on), 4),
                        PV_OK);
           })
        << QStringList() << names({44}) << "device 1000: DHCP on: ok";
    QTest::newRow("a call refused for bad input is an error")
        << mask({30, 31}) << all << Action([] { open(999, PV_ERR_UNKNOWN_DEVICE); }) << names({31})
        << QStringList() << "failed with 104: no camera with device ID 999";
    QTest::newRow("a camera in use is a warning")
        << mask({30, 31, 4}) << all << Action([] { open(usbCameraInUse, PV_ERR_DEVICE_IN_USE); })
        << names({4, 30}) << QStringList() << "open device 3: failed with 107";
    QTest::newRow("an injected failure, errors off")
        << mask({30}) << all << Action([] {
               pvsim_FailOperation("pv_GetNumberOfCameras", PV_ERR_GENERAL, 1);
               std::int32_t count = 0;
               QCOMPARE(pv_GetNumberOfCameras(&count), PV_ERR_GENERAL);
           })
        << QStringList() << QStringList() << QString();
}

void TestDriverOutput::tracesExactlyTheEnabledCategories()
{
    QFETCH(quint64, usbMask);
    QFETCH(quint64, ethMask);
    QFETCH(Action, action);
    QFETCH(QStringList, usbCategories);
    QFETCH(QStringList, ethCategories);
    QFETCH(QString, expectedText);

    setMasks(usbMask, ethMask);
    action();
    if (QTest::currentTestFailed())
        return;

    const QStringList usb = lines(Driver::Usb);
    const QStringList eth = lines(Driver::Eth);
    QCOMPARE(categories(usb), usbCategories);
    QCOMPARE(categories(eth), ethCategories);
    for (const QString& line : usb)
        QVERIFY2(line.section(QLatin1Char(' '), 1, 1) == QLatin1String("cirro_usb"), qPrintable(line));
    for (const QString& line : eth)
        QVERIFY2(line.section(QLatin1Char(' '), 1, 1) == QLatin1String("cirro_eth"), qPrintable(line));
    if (!expectedText.isEmpty())
        QVERIFY2((usb + eth).join(QLatin1Char('\n')).contains(expectedText), qPrintable((usb + eth).join('\n')));
}

void TestDriverOutput::maskValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("traces");

    QTest::newRow("decimal") << QVariant(QStringLiteral("16")) << true;
    QTest::newRow("hexadecimal") << QVariant(QStringLiteral("0x10")) << true;
    QTest::newRow("all 64 bits") << QVariant::fromValue<quint64>(~quint64(0)) << true;
    QTest::newRow("words") << QVariant(QStringLiteral("sixteen")) << false;
    QTest::newRow("negative") << QVariant(QStringLiteral("-16")) << false;
    QTest::newRow("hexadecimal prefix only") << QVariant(QStringLiteral("0x")) << false;
    QTest::newRow("beyond 64 bits") << QVariant(QStringLiteral("18446744073709551632")) << false;
    QTest::newRow("list") << QVariant(QStringList{QStringLiteral("16"), QStringLiteral("16")}) << false;
}

void TestDriverOutput::maskValues()
{
    QFETCH(QVariant, value);
    QFETCH(bool, traces);

    setMask(DriverServiceSettings::usbService, value);
    QCOMPARE(pv_FetchRegistryValues(), PV_OK);
    openAndClose(usbCamera);

    const DriverOutput::Recent recent = DriverOutput::recent(Driver::Usb);
    QCOMPARE(recent.result.isSuccess(), traces);
    QCOMPARE(recent.lines.isEmpty(), !traces);
    if (!traces)
        QVERIFY2(recent.result.text().contains(traceFile(DriverServiceSettings::usbService)),
                 qPrintable(recent.result.text()));
}

void TestDriverOutput::maskZeroStopsTheTrace()
{
    setMasks(mask({4}), mask({4}));
    openAndClose(usbCamera);
    const QStringList before = lines(Driver::Usb);
    QCOMPARE(before.size(), 2);

    setMasks(0, 0);
    openAndClose(usbCamera);
    openAndClose(gigeCamera);
    QCOMPARE(lines(Driver::Usb), before);
    QVERIFY(!DriverOutput::recent(Driver::Eth).result.isSuccess());
}

void TestDriverOutput::rotationKeepsTheTailReadable()
{
    setMasks(mask({4}), 0);
    const QString file = traceFile(DriverServiceSettings::usbService);
    {
        QFile old(file);
        QVERIFY(old.open(QIODevice::WriteOnly));
        const QByteArray line(99, 'x');
        for (int i = 0; old.size() + 200 < DriverTraceFiles::rotateBytes; ++i)
            old.write(line + QByteArray::number(i % 10) + '\n');
    }
    openAndClose(usbCamera);
    openAndClose(usbCamera);

    QVERIFY(QFile::exists(file + QStringLiteral(".1")));
    QVERIFY(QFileInfo(file).size() < 1000);
    const QStringList tail = DriverOutput::recent(Driver::Usb, 5).lines;
    QCOMPARE(tail.size(), 5);
    QVERIFY2(tail.at(0).startsWith(QByteArray(99, 'x')), qPrintable(tail.at(0)));
    QVERIFY2(tail.at(1).contains(QLatin1String("open device 0")), qPrintable(tail.at(1)));
    QVERIFY2(tail.at(4).contains(QLatin1String("close device 0")), qPrintable(tail.at(4)));
}

void TestDriverOutput::concurrentCallsWriteWholeLines()
{
    setMasks(mask({0}), 0);
    constexpr int threads = 4;
    constexpr int calls = 200;
    std::vector<std::thread> callers;
    for (int t = 0; t < threads; ++t) {
        callers.emplace_back([] {
            for (int i = 0; i < calls; ++i) {
                std::int32_t count = 0;
                pv_GetNumberOfCameras(&count);
            }
        });
    }
    for (std::thread& caller : callers)
        caller.join();

    const QStringList traced = lines(Driver::Usb);
    QCOMPARE(traced.size(), threads * calls);
    const QRegularExpression whole(
        QStringLiteral(R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3} cirro_usb \[All IOCTL calls\] )"
                       R"(pv_GetNumberOfCameras\(\): 0$)"));
    for (const QString& line : traced)
        QVERIFY2(whole.match(line).hasMatch(), qPrintable(line));
}

QTEST_GUILESS_MAIN(TestDriverOutput)
#include "tst_driveroutput.moc"
