#include "supportfile/supportfilecodec.h"
#include "supportfile/supportfilewalk.h"
#include "supportfile/widgets/supportfiledialog.h"

#include "supportfiletestsupport.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

using namespace SupportFileTestSupport;

namespace {

QStringList topLevelTexts(const QTreeWidget& tree)
{
    QStringList texts;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        texts << tree.topLevelItem(i)->text(0);
    return texts;
}

} // namespace

class TestSupportFileDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsTheFileAsATwoColumnTree();
    void damagedFilesSayWhereReadingStopped_data();
    void damagedFilesSayWhereReadingStopped();
    void exportsWriteWhatIsShown();

private:
    QString write(const QList<Camera>& cameras, bool redact = false);

    QTemporaryDir m_dir;
};

void TestSupportFileDialog::init()
{
    QVERIFY(m_dir.isValid());
}

QString TestSupportFileDialog::write(const QList<Camera>& cameras, bool redact)
{
    const QString path = m_dir.filePath("site.bin");
    const Result result = SupportFileWalk::writeFile(path, sources(cameras),
                                                     redact ? std::optional<QByteArray>("key") : std::nullopt);
    return result.isSuccess() ? path : QString();
}

void TestSupportFileDialog::showsTheFileAsATwoColumnTree()
{
    SupportFileDialog dialog(write({makeCamera(0, "U0", "1-2.3"), makeCamera(1000, "E0")}));
    const QTreeWidget* tree = dialog.tree();
    QCOMPARE(tree->columnCount(), 2);
    QCOMPARE(tree->headerItem()->text(0), QString("Key"));
    QCOMPARE(tree->headerItem()->text(1), QString("Value"));
    QCOMPARE(tree->columnWidth(0), 300);
    QCOMPARE(topLevelTexts(*tree), (QStringList{"USB Cameras", "ETH Cameras", "No VPE Cameras", "Drivers",
                                                "System Information", "Network adapter", "USB Controller",
                                                "Parvel Summit compatibility mode"}));
    const QTreeWidgetItem* usb = tree->topLevelItem(0)->child(0);
    QCOMPARE(usb->text(0), QString("0 / Unused"));
    QCOMPARE(usb->child(1)->text(1), QString("U0"));
    QCOMPARE(dialog.notice(), QString());
    QVERIFY(!dialog.findChild<QLabel*>("notice")->isVisibleTo(&dialog));
    // The path rows nest like the device details, hub in hub.
    const QList<QTreeWidgetItem*> hubs = tree->findItems("1. Hub", Qt::MatchExactly | Qt::MatchRecursive);
    QCOMPARE(hubs.size(), 1);
    QCOMPARE(hubs[0]->text(1), QString("Generic USB Hub (Port 3)"));
    QCOMPARE(hubs[0]->child(0)->child(0)->text(0), QString("3. Controller"));

    SupportFileDialog redacted(write({makeCamera(1000, "E0")}, true));
    QVERIFY(redacted.notice().contains("pseudonyms"));
}

void TestSupportFileDialog::damagedFilesSayWhereReadingStopped_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("treeShown");
    QTest::newRow("first line") << 1 << false;
    QTest::newRow("inside the cameras") << 4000 << true;
}

void TestSupportFileDialog::damagedFilesSayWhereReadingStopped()
{
    QFETCH(int, line);
    QFETCH(bool, treeShown);
    const QString path = write({makeCamera(1000, "E0")});
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QList<QByteArray> lines = file.readAll().split('\n');
    file.close();
    lines[line - 1] = "bad\r";
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(lines.join('\n'));
    file.close();

    SupportFileDialog dialog(path);
    QVERIFY2(dialog.notice().contains(QStringLiteral("line %1").arg(line)), qPrintable(dialog.notice()));
    QVERIFY(dialog.notice().contains("site.bin"));
    QCOMPARE(dialog.tree()->topLevelItemCount() > 0, treeShown);
    QCOMPARE(dialog.findChild<QPushButton*>("exportJson")->isEnabled(), treeShown);
    if (treeShown) {
        // The counts come after the cameras: the camera read before the damage is shown without its count.
        QCOMPARE(dialog.tree()->topLevelItem(1)->text(0), QString("ETH Cameras"));
        QCOMPARE(dialog.tree()->topLevelItem(1)->child(0)->text(0), QString("1000 / Unused"));
    }
}

void TestSupportFileDialog::exportsWriteWhatIsShown()
{
    SupportFileDialog dialog(write({makeCamera(1000, "E0")}));
    const QString json = m_dir.filePath("site.json");
    QVERIFY(dialog.exportTo(json, SupportFileDialog::ExportFormat::Json).isSuccess());
    QFile file(json);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QJsonDocument::fromJson(file.readAll()).object()["ETH - 0"].toObject()["DeviceSerNo"].toString(),
             QString("E0"));
    const Result refused = dialog.exportTo(m_dir.filePath("missing/dir/site.ini"), SupportFileDialog::ExportFormat::Ini);
    QVERIFY(!refused.isSuccess());
    QVERIFY(refused.text().contains("site.ini"));
}

QTEST_MAIN(TestSupportFileDialog)
#include "tst_supportfiledialog.moc"
