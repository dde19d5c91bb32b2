#include "common/hardwareids.h"

#include <QTemporaryDir>
#include <QtTest>

// Names from an id list that the test writes in the layout of pci.ids.
class TestHardwareIds : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void describe_data();
    void describe();

private:
    static bool write(const QString& path, const QByteArray& content);

    QTemporaryDir m_dir;
    QHash<QString, QStringList> m_candidates; // by list
};

bool TestHardwareIds::write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

void TestHardwareIds::initTestCase()
{
    QVERIFY(m_dir.isValid());
    const QString missing = m_dir.filePath(QStringLiteral("missing.ids"));
    const QString pci = m_dir.filePath(QStringLiteral("pci.ids"));
    QVERIFY(write(pci, "# comment 8086  Not a vendor\n"
                       "1af4  Red Hat, Inc.\n"
                       "\t1041  Virtio 1.0 network device\n"
                       "\t\t8086 1234  Subsystem line, not a device\n"
                       "8086  Intel Corporation\n"
                       "# a comment inside the vendor block\n"
                       "\t15bb  Ethernet Connection (7) I219-LM\n"
                       "\t9d2f  Sunrise Point-LP USB 3.0 xHCI Controller\n"
                       "\t\t103c 8079  EliteBook 840 G3\n"
                       "1b21  ASMedia Technology Inc.\n"
                       "\t1042  ASM1042 SuperSpeed USB Host Controller\n"
                       "abcd  Last Vendor\n"
                       "C 02  Network controller\n"
                       "\t00  Ethernet controller\n"));
    m_candidates.insert(QStringLiteral("pci"), {missing, pci});
    m_candidates.insert(QStringLiteral("none"), {QString(), missing});
}

void TestHardwareIds::describe_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<quint16>("vendor");
    QTest::addColumn<quint16>("device");
    QTest::addColumn<QString>("description");

    const quint16 intel = 0x8086;
    QTest::newRow("device after a comment line") << "pci" << intel << quint16(0x15bb)
                                                 << "Intel Corporation Ethernet Connection (7) I219-LM";
    QTest::newRow("first vendor") << "pci" << quint16(0x1af4) << quint16(0x1041)
                                  << "Red Hat, Inc. Virtio 1.0 network device";
    QTest::newRow("vendor after a subsystem line")
        << "pci" << quint16(0x1b21) << quint16(0x1042)
        << "ASMedia Technology Inc. ASM1042 SuperSpeed USB Host Controller";

    QTest::newRow("device missing from the list")
        << "pci" << intel << quint16(0x1234) << "Intel Corporation Device 1234";
    QTest::newRow("device listed under an earlier vendor")
        << "pci" << intel << quint16(0x1041) << "Intel Corporation Device 1041";
    QTest::newRow("device listed under the next vendor")
        << "pci" << intel << quint16(0x1042) << "Intel Corporation Device 1042";
    QTest::newRow("subsystem line taken for a device")
        << "pci" << quint16(0x1af4) << intel << "Red Hat, Inc. Device 8086";
    QTest::newRow("last vendor, followed by the classes") << "pci" << quint16(0xabcd) << quint16(0x0002)
                                                          << "Last Vendor Device 0002";

    QTest::newRow("vendor missing from the list")
        << "pci" << quint16(0xbeef) << quint16(0x0001) << "beef:0001";
    QTest::newRow("vendor missing, numbers with leading zeros")
        << "pci" << quint16(0x00ab) << quint16(0x0001) << "00ab:0001";
    QTest::newRow("no readable list") << "none" << intel << quint16(0x15bb) << "8086:15bb";
}

void TestHardwareIds::describe()
{
    QFETCH(QString, list);
    QFETCH(quint16, vendor);
    QFETCH(quint16, device);
    const HardwareIds ids(m_candidates.value(list));
    QTEST(ids.describe(vendor, device), "description");
}

QTEST_GUILESS_MAIN(TestHardwareIds)
#include "tst_hardwareids.moc"
