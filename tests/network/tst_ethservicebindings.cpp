#include "driversettings/driverservicesettings.h"
#include "network/ethservicebindings.h"
#include "withoutwriterights.h"

#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

// The binding list in the ETH service's file below a configuration root of the
// test's own.
class TestEthServiceBindings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void changesLandInTheDriversFormat();
    void unwritableFileIsReported_data();
    void unwritableFileIsReported();
    void refusesNamesThatAreNoInterfaceNames_data();
    void refusesNamesThatAreNoInterfaceNames();

private:
    static QByteArray readAll(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QString serviceFile() const { return DriverServiceSettings::filePath(QStringLiteral("cirro_eth")); }

    std::unique_ptr<QTemporaryDir> m_root;
};

void TestEthServiceBindings::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(m_root->isValid());
    qputenv("CIRRO_CONFIG_ROOT", m_root->path().toUtf8());
}

void TestEthServiceBindings::cleanup()
{
    qunsetenv("CIRRO_CONFIG_ROOT");
    m_root.reset();
}

void TestEthServiceBindings::changesLandInTheDriversFormat()
{
    QVERIFY(EthServiceBindings::isBound(QStringLiteral("eth0")));
    QVERIFY(!QFile::exists(serviceFile()));
    QSettings existing(serviceFile(), QSettings::IniFormat);
    existing.setValue(QStringLiteral("Parameters/DebugEnableMask"), 7);
    existing.sync();

    QVERIFY(EthServiceBindings::setBound(QStringLiteral("enp3s0"), false).isSuccess());
    QVERIFY(EthServiceBindings::setBound(QStringLiteral("eth0.100"), false).isSuccess());
    QVERIFY(EthServiceBindings::setBound(QStringLiteral("eth0.100"), true).isSuccess());
    QVERIFY(!EthServiceBindings::isBound(QStringLiteral("enp3s0")));
    QVERIFY(EthServiceBindings::isBound(QStringLiteral("eth0.100")));
    QVERIFY(EthServiceBindings::isBound(QStringLiteral("eth0")));

    QSettings driverView(serviceFile(), QSettings::IniFormat);
    QCOMPARE(driverView.childGroups(), QStringList({QStringLiteral("Bindings"), QStringLiteral("Parameters")}));
    QCOMPARE(driverView.value(QStringLiteral("Bindings/enp3s0")), QVariant(QStringLiteral("false")));
    QCOMPARE(driverView.value(QStringLiteral("Bindings/eth0.100")), QVariant(QStringLiteral("true")));
    QCOMPARE(driverView.value(QStringLiteral("Parameters/DebugEnableMask")).toInt(), 7);
}

void TestEthServiceBindings::unwritableFileIsReported_data()
{
    QTest::addColumn<bool>("readOnlyDirectory");
    QTest::addColumn<bool>("directoryInPlace");
    QTest::addColumn<int>("code");
    QTest::newRow("read-only file") << false << false << int(HostError::NotWritable);
    // The file could be written in place, but not replaced atomically.
    QTest::newRow("read-only directory") << true << false << int(HostError::NotWritable);
    QTest::newRow("directory where the file belongs") << false << true << int(HostError::UnreadableFile);
}

void TestEthServiceBindings::unwritableFileIsReported()
{
    QFETCH(bool, readOnlyDirectory);
    QFETCH(bool, directoryInPlace);
    QFETCH(int, code);
    if (directoryInPlace)
        QVERIFY(QDir().mkpath(serviceFile()));
    else
        QVERIFY(EthServiceBindings::setBound(QStringLiteral("eth0"), true).isSuccess());
    const QByteArray before = readAll(serviceFile());
    {
        WithoutWriteRights readOnly(m_root->path(), readOnlyDirectory);
        const Result result = EthServiceBindings::setBound(QStringLiteral("eth0"), false);
        QCOMPARE(result.code(), code);
        QVERIFY(result.text().contains(serviceFile()));
        QVERIFY(EthServiceBindings::isBound(QStringLiteral("eth0")));
    }
    QCOMPARE(readAll(serviceFile()), before);
}

void TestEthServiceBindings::refusesNamesThatAreNoInterfaceNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("group separator") << QStringLiteral("Parameters/DebugEnableMask");
    QTest::newRow("colon alias") << QStringLiteral("eth0:1");
    QTest::newRow("sixteen characters") << QStringLiteral("abcdefghijklmnop");
}

void TestEthServiceBindings::refusesNamesThatAreNoInterfaceNames()
{
    QFETCH(QString, name);
    const Result result = EthServiceBindings::setBound(name, false);
    QCOMPARE(result.code(), int(HostError::UnknownInterface));
    QVERIFY(!QFile::exists(serviceFile()));
    QVERIFY(EthServiceBindings::isBound(name));
}

QTEST_GUILESS_MAIN(TestEthServiceBindings)
#include "tst_ethservicebindings.moc"
