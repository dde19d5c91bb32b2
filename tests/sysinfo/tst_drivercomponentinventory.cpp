#include "common/kernelmodules.h"
#include "services/servicemanager.h"
#include "sysinfo/drivercomponentinventory.h"
#include "sysinfo/systeminformation.h"

#include "kernelmodulesfixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(std::vector<int>)

namespace {

class FixedServices : public ServiceManager
{
public:
    CoreStates::State state(const QString& service) const override
    {
        return service == QLatin1String("cirro_usb")   ? CoreStates::Running
               : service == QLatin1String("cirro_eth") ? CoreStates::NotRunning
                                                       : CoreStates::NotInstalled;
    }

protected:
    Result change(const QString&, Change) override { return Result(); }
};

QStringList names(const DriverComponentList& components)
{
    QStringList result;
    for (const DriverComponent& component : components)
        result << component.name;
    return result;
}

} // namespace

class TestDriverComponentInventory : public QObject
{
    Q_OBJECT

private slots:
    void apiLibraryIsTheResolvedOne();
    void vendorDriverHasModulesAndUnits();
    void simulatedDriverHasItsOwnServices();
    void libraryFileVersion_data();
    void libraryFileVersion();
    void processorLists_data();
    void processorLists();
    void architectureCodes_data();
    void architectureCodes();
    void osReleaseNames_data();
    void osReleaseNames();
    void hostValues();
};

void TestDriverComponentInventory::apiLibraryIsTheResolvedOne()
{
    const DriverComponent library = DriverComponentInventory::apiLibrary();
    QVERIFY2(library.name.startsWith("libcirro_api.so"), qPrintable(library.name));
    QVERIFY(QFileInfo(library.path).isAbsolute() && QFileInfo::exists(library.path));
    QCOMPARE(library.productVersion, QString("4.97.0"));
}

void TestDriverComponentInventory::vendorDriverHasModulesAndUnits()
{
    QTemporaryDir dir;
    KernelModulesFixture modules(dir.filePath("modules"));
    modules.addModule("updates/cirro/cirro_usb.ko.xz", QDateTime(QDate(2024, 3, 5), QTime(10, 0)));
    QVERIFY(modules.ok());
    QVERIFY(QDir().mkpath(dir.filePath("sys/module/cirro_usb")));
    QFile version(dir.filePath("sys/module/cirro_usb/version"));
    QVERIFY(version.open(QIODevice::WriteOnly));
    version.write("2.4.1\n");
    version.close();

    const FixedServices services;
    const DriverComponentList components = DriverComponentInventory::collect(
        {services, KernelModules(modules.directory()), dir.filePath("sys"), false});
    QCOMPARE(names(components).mid(1),
             (QStringList{"cirro_usb.ko.xz", "cirro_usb.service", "cirro_eth.service", "cirro_com.service"}));
    QCOMPARE(components[1].fileVersion, QString("2.4.1"));
    QCOMPARE(components[1].date, QString("3-5-2024"));
    QCOMPARE(components[1].path, dir.filePath("modules/updates/cirro/cirro_usb.ko.xz"));
    QCOMPARE(components[2].productVersion, QString("running"));
    QCOMPARE(components[3].productVersion, QString("not running"));
    QCOMPARE(components[4].productVersion, QString("not installed"));
}

void TestDriverComponentInventory::simulatedDriverHasItsOwnServices()
{
    const FixedServices services;
    QTemporaryDir dir;
    const DriverComponentList components =
        DriverComponentInventory::collect({services, KernelModules(dir.path()), dir.path(), true});
    QCOMPARE(names(components).mid(1), (QStringList{"cirro_usb (simulated)", "cirro_eth (simulated)"}));
    QCOMPARE(components[0].kind, DriverComponent::Kind::ApiLibrary);
}

void TestDriverComponentInventory::libraryFileVersion_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("version");
    QTest::newRow("full") << "libcirro_api.so.4.97.0" << "4.97.0";
    QTest::newRow("major") << "libcirro_api.so.4" << "4";
    QTest::newRow("none") << "libcirro_api.so" << "";
}

void TestDriverComponentInventory::libraryFileVersion()
{
    QFETCH(QString, file);
    QFETCH(QString, version);
    QCOMPARE(DriverComponentInventory::libraryFileVersion(file), version);
}

void TestDriverComponentInventory::processorLists_data()
{
    QTest::addColumn<std::vector<int>>("processors");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << std::vector<int>{} << "";
    QTest::newRow("one") << std::vector<int>{3} << "3";
    QTest::newRow("ranges") << std::vector<int>{0, 1, 2, 3, 6, 8, 9} << "0-3,6,8-9";
}

void TestDriverComponentInventory::processorLists()
{
    QFETCH(std::vector<int>, processors);
    QFETCH(QString, text);
    QCOMPARE(SystemInformation::processorListText(processors), text);
}

void TestDriverComponentInventory::architectureCodes_data()
{
    QTest::addColumn<QString>("machine");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("x86_64") << "x86_64" << 9 << "x64";
    QTest::newRow("aarch64") << "aarch64" << 12 << "ARM64";
    QTest::newRow("i686") << "i686" << 0 << "x86";
    QTest::newRow("riscv64") << "riscv64" << 0xFFFF << "65535";
}

void TestDriverComponentInventory::architectureCodes()
{
    QFETCH(QString, machine);
    QFETCH(int, code);
    QFETCH(QString, name);
    QCOMPARE(SystemInformation::architectureCode(machine), code);
    QCOMPARE(SystemInformation::architectureName(code), name);
}

void TestDriverComponentInventory::osReleaseNames_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::newRow("pretty") << QByteArray("NAME=\"Debian GNU/Linux\"\nPRETTY_NAME=\"Debian GNU/Linux 12 (bookworm)\"\n")
                            << "Debian GNU/Linux 12 (bookworm)";
    QTest::newRow("name and version") << QByteArray("NAME=Alpine\nVERSION=3.19\n") << "Alpine 3.19";
    QTest::newRow("empty") << QByteArray() << "";
}

void TestDriverComponentInventory::osReleaseNames()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, name);
    QCOMPARE(SystemInformation::prettyName(content), name);
}

void TestDriverComponentInventory::hostValues()
{
    const SystemInformation info = SystemInformation::read();
    QCOMPARE(info.platformId, QString("Linux"));
    QVERIFY(info.numberOfProcessors >= 1);
    QVERIFY(!info.activeProcessorMask.isEmpty());
    const auto [major, minor] = SystemInformation::kernelVersion(info.buildNumber);
    QCOMPARE(info.majorVersion, major);
    QCOMPARE(info.minorVersion, minor);
    QVERIFY(major >= 3);
}

QTEST_GUILESS_MAIN(TestDriverComponentInventory)
#include "tst_drivercomponentinventory.moc"
