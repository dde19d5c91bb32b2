#include "network/adapterdescription_linux.h"

#include <QTemporaryDir>
#include <QtTest>

// Descriptions from sysfs trees and id lists that the test writes.
class TestAdapterDescription : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void describe_data();
    void describe();

private:
    void write(const QString& path, const QByteArray& content);
    void link(const QString& target, const QString& path);
    // A PCI function below devices/ and its network interface.
    QString addPci(const QString& slot, const QByteArray& vendor, const QByteArray& device);
    void addInterface(const QString& name, const QString& deviceDir, const QByteArray& uevent = {},
                      const QByteArray& type = "1");

    QTemporaryDir m_dir;
    QString m_sysfs;
    QString m_pciIds;
    QString m_usbIds;
};

void TestAdapterDescription::write(const QString& path, const QByteArray& content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void TestAdapterDescription::link(const QString& target, const QString& path)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QVERIFY(QFile::link(target, path));
}

QString TestAdapterDescription::addPci(const QString& slot, const QByteArray& vendor, const QByteArray& device)
{
    const QString dir = m_sysfs + QStringLiteral("/devices/pci0000:00/") + slot;
    write(dir + QStringLiteral("/vendor"), vendor + '\n');
    write(dir + QStringLiteral("/device"), device + '\n');
    link(m_sysfs + QStringLiteral("/bus/pci"), dir + QStringLiteral("/subsystem"));
    return dir;
}

void TestAdapterDescription::addInterface(const QString& name, const QString& deviceDir, const QByteArray& uevent,
                                          const QByteArray& type)
{
    const QString dir = m_sysfs + QStringLiteral("/class/net/") + name;
    write(dir + QStringLiteral("/uevent"), "INTERFACE=" + name.toUtf8() + '\n' + uevent);
    write(dir + QStringLiteral("/type"), type + '\n');
    if (!deviceDir.isEmpty())
        link(deviceDir, dir + QStringLiteral("/device"));
}

void TestAdapterDescription::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_sysfs = m_dir.filePath(QStringLiteral("sys"));
    QVERIFY(QDir().mkpath(m_sysfs + QStringLiteral("/bus/pci")));

    m_pciIds = m_dir.filePath(QStringLiteral("pci.ids"));
    write(m_pciIds, "1af4  Red Hat, Inc.\n"
                    "\t1041  Virtio 1.0 network device\n"
                    "8086  Intel Corporation\n"
                    "\t15bb  Ethernet Connection (7) I219-LM\n");
    m_usbIds = m_dir.filePath(QStringLiteral("usb.ids"));
    write(m_usbIds, "0bda  Realtek Semiconductor Corp.\n\t8153  RTL8153 Gigabit Ethernet Adapter\n");

    addInterface(QStringLiteral("enp0s31f6"), addPci(QStringLiteral("0000:00:1f.6"), "0x8086", "0x15bb"));
    const QString virtioPci = addPci(QStringLiteral("0000:00:03.0"), "0x1af4", "0x1041");
    write(virtioPci + QStringLiteral("/virtio2/vendor"), "0x1af4\n");
    write(virtioPci + QStringLiteral("/virtio2/device"), "0x0001\n");
    addInterface(QStringLiteral("eth0"), virtioPci + QStringLiteral("/virtio2"));
    const QString brokenPci = addPci(QStringLiteral("0000:04:00.0"), "0x8086", "0x15bb");
    QVERIFY(QFile::remove(brokenPci + QStringLiteral("/vendor")));
    QVERIFY(QDir().mkpath(brokenPci + QStringLiteral("/vendor")));
    addInterface(QStringLiteral("enp4s0"), brokenPci);

    const QString usbDevice = m_sysfs + QStringLiteral("/devices/pci0000:00/0000:00:14.0/usb2/2-1");
    write(usbDevice + QStringLiteral("/idVendor"), "0bda\n");
    write(usbDevice + QStringLiteral("/idProduct"), "8153\n");
    QVERIFY(QDir().mkpath(usbDevice + QStringLiteral("/2-1:1.0")));
    addInterface(QStringLiteral("enx00e04c680001"), usbDevice + QStringLiteral("/2-1:1.0"));

    addInterface(QStringLiteral("br0"), {}, "DEVTYPE=bridge\n");
    addInterface(QStringLiteral("veth0"), {});
    addInterface(QStringLiteral("lo"), {}, {}, "772");
    addInterface(QStringLiteral("tun0"), {}, {}, "65534");
}

void TestAdapterDescription::describe_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("driver");
    QTest::addColumn<QString>("description");

    QTest::newRow("PCI adapter") << "enp0s31f6" << "e1000e" << "Intel Corporation Ethernet Connection (7) I219-LM";
    QTest::newRow("virtio function below its PCI device")
        << "eth0" << "virtio_net" << "Red Hat, Inc. Virtio 1.0 network device";
    QTest::newRow("unreadable vendor attribute") << "enp4s0" << "e1000e" << "e1000e";
    QTest::newRow("USB adapter") << "enx00e04c680001" << "r8152"
                                 << "Realtek Semiconductor Corp. RTL8153 Gigabit Ethernet Adapter";
    QTest::newRow("bridge by DEVTYPE") << "br0" << "bridge" << "bridge";
    QTest::newRow("veth by its driver") << "veth0" << "veth" << "veth";
    QTest::newRow("loopback by link type") << "lo" << "" << "loopback";
    QTest::newRow("tun by link type") << "tun0" << "" << "tun";
    QTest::newRow("not an interface") << "nosuch0" << "" << "1";
    QTest::newRow("name leaving class/net") << "../../devices" << "" << "1";
}

void TestAdapterDescription::describe()
{
    QFETCH(QString, name);
    QFETCH(QString, driver);
    QFETCH(QString, description);
    const AdapterDescription descriptions(m_sysfs, {m_dir.filePath(QStringLiteral("missing.ids")), m_pciIds},
                                          {m_usbIds});
    QCOMPARE(descriptions.describe(name, driver), description);
}

QTEST_GUILESS_MAIN(TestAdapterDescription)
#include "tst_adapterdescription.moc"
