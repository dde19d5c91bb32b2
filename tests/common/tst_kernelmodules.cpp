#include "common/kernelmodules.h"

#include "kernelmodulesfixture.h"

#include <QTemporaryDir>
#include <QtTest>

// Build dates from a modules directory that the test writes.
class TestKernelModules : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void buildDate_data();
    void buildDate();

private:
    QTemporaryDir m_dir;
};

void TestKernelModules::initTestCase()
{
    QVERIFY(m_dir.isValid());
    KernelModulesFixture modules(m_dir.path());
    // Near midday UTC, so the local date is the same in the usual time zones.
    const QDateTime march7(QDate(2024, 3, 7), QTime(10, 0), Qt::UTC);
    modules.addModule(QStringLiteral("kernel/drivers/net/ethernet/intel/e1000e/e1000e.ko.xz"), march7,
                      "kernel/drivers/ptp/ptp.ko.xz");
    modules.addModule(QStringLiteral("kernel/drivers/net/virtio_net.ko"), march7);
    modules.addModule(QStringLiteral("kernel/drivers/hid/hid-generic.ko.zst"),
                      QDateTime(QDate(2023, 12, 25), QTime(12, 0), Qt::UTC));
    modules.addLine("garbage line without a colon");
    QVERIFY(modules.ok());
}

void TestKernelModules::buildDate_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("date");
    QTest::newRow("listed module") << "e1000e" << "3-7-2024";
    QTest::newRow("asked with a dash, listed with an underscore") << "virtio-net" << "3-7-2024";
    QTest::newRow("asked with an underscore, listed with a dash") << "hid_generic" << "12-25-2023";
    QTest::newRow("built-in or unknown") << "veth" << "";
}

void TestKernelModules::buildDate()
{
    QFETCH(QString, module);
    QTEST(KernelModules(m_dir.path()).buildDate(module), "date");
}

QTEST_GUILESS_MAIN(TestKernelModules)
#include "tst_kernelmodules.moc"
