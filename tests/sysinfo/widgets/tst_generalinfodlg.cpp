#include "services/servicemanager.h"
#include "sysinfo/widgets/generalinfodlg.h"
#include "sysinfo/widgets/infotreeview.h"
#include "sysinfo/widgets/updatespage.h"

#include "loopbackhttpserver.h"
#include "simdriverfixture.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

class TestGeneralInfoDlg : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void pagesInOrderAndFilledFromTheMachine();
    void copyHoldsEveryPage();
    void updateCheckShowsTheDownloadPageAndTheNotesInTheLanguage();
    void updateCheckWithoutAddressSaysWhatToDo();
    void lastPageAndAddressAreKept();

private:
    std::unique_ptr<GeneralInfoDlg> open(const QString& language = QStringLiteral("en"));

    QTemporaryDir m_settings;
    std::unique_ptr<ServiceManager> m_services;
};

void TestGeneralInfoDlg::initTestCase()
{
    QVERIFY(SimDriverFixture::reset());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    QCoreApplication::setApplicationVersion(QStringLiteral("4.97.0.0"));
    m_services = ServiceManager::create();
}

void TestGeneralInfoDlg::init()
{
    QSettings("Parvel", "CameraManager").clear();
}

std::unique_ptr<GeneralInfoDlg> TestGeneralInfoDlg::open(const QString& language)
{
    auto dialog = std::make_unique<GeneralInfoDlg>(language, *m_services);
    dialog->show();
    return dialog;
}

void TestGeneralInfoDlg::pagesInOrderAndFilledFromTheMachine()
{
    const auto dialog = open();
    auto* pages = dialog->findChild<QTabWidget*>("pages");
    QVERIFY(pages);
    QStringList names;
    for (int i = 0; i < pages->count(); ++i)
        names << pages->widget(i)->objectName();
    QCOMPARE(names, QStringList({"about", "drivers", "usbControllers", "networkAdapters", "updates"}));

    auto* drivers = dialog->findChild<InfoTreeView*>("drivers");
    QVERIFY(drivers->topLevelItem(0)->text(0).startsWith(QLatin1String("libcirro_api")));
    QTRY_VERIFY(!dialog->isReading());
    auto* adapters = dialog->findChild<InfoTreeView*>("networkAdapters");
    QVERIFY(adapters->topLevelItemCount() > 0);
    QVERIFY(adapters->topLevelItem(0)->text(0) != QLatin1String("Reading …"));
    auto* title = dialog->findChild<QLabel*>("aboutTitle");
    QVERIFY2(title->text().contains(QLatin1String("Version 4.97.0.0")), qPrintable(title->text()));
}

void TestGeneralInfoDlg::copyHoldsEveryPage()
{
    const auto dialog = open();
    QTRY_VERIFY(!dialog->isReading());
    dialog->findChild<QPushButton*>("copyToClipboard")->click();
    const QString text = QApplication::clipboard()->text();
    QStringList missing;
    for (const char* heading : {"About\n", "Drivers\n", "USB controllers", "Network adapters\n", "Updates\n",
                                "Boost Software License", "libcirro_api"}) {
        if (!text.contains(QLatin1String(heading)))
            missing << heading;
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(", ") + "\n" + text));
    QVERIFY(!text.contains(QLatin1String("still being read")));
    QCOMPARE(dialog->findChild<QLabel*>("copied")->text(), QStringLiteral("Copied to the clipboard."));
}

void TestGeneralInfoDlg::updateCheckShowsTheDownloadPageAndTheNotesInTheLanguage()
{
    LoopbackHttpServer server;
    server.route("/latest.json",
                 {200,
                  R"({"format": 1, "latestVersion": "4.98.0.0", "downloadPage": "https://downloads.example/cm/",
                      "notes": {"en": "Faster lists.", "de": "Schnellere Listen."}})",
                  {}, true});
    const auto dialog = open(QStringLiteral("de"));
    dialog->findChild<QLineEdit*>("updateAddress")->setText(server.url("/latest.json").toString());
    auto* check = dialog->findChild<QPushButton*>("checkForUpdates");
    QSignalSpy finished(&dialog->updatesPage()->check(), &UpdateCheck::finished);
    QVERIFY(finished.isValid());
    check->click();
    QVERIFY(finished.wait(10000));
    const QString result = dialog->findChild<QLabel*>("updateResult")->text();
    QVERIFY2(result.contains(QLatin1String("Version 4.98.0.0 is available")), qPrintable(result));
    QVERIFY2(result.contains(QLatin1String("href=\"https://downloads.example/cm/\"")), qPrintable(result));
    QCOMPARE(dialog->findChild<QLabel*>("updateNotes")->text(), QStringLiteral("Schnellere Listen."));
    QCOMPARE(check->text(), QStringLiteral("Check for updates"));
    QVERIFY(dialog->text().contains(QLatin1String("Download page: https://downloads.example/cm/")));
}

void TestGeneralInfoDlg::updateCheckWithoutAddressSaysWhatToDo()
{
    const auto dialog = open();
    dialog->findChild<QLineEdit*>("updateAddress")->setText(QStringLiteral("  "));
    dialog->findChild<QPushButton*>("checkForUpdates")->click();
    QVERIFY(dialog->findChild<QLabel*>("updateResult")->text().startsWith(QLatin1String("No update address is set.")));
    QVERIFY(!dialog->updatesPage()->check().isRunning());
}

void TestGeneralInfoDlg::lastPageAndAddressAreKept()
{
    LoopbackHttpServer server;
    const QString address = server.url("/missing.json").toString();
    {
        const auto dialog = open();
        dialog->findChild<QTabWidget*>("pages")->setCurrentIndex(4);
        dialog->findChild<QLineEdit*>("updateAddress")->setText(address);
        QSignalSpy finished(&dialog->updatesPage()->check(), &UpdateCheck::finished);
        dialog->findChild<QPushButton*>("checkForUpdates")->click();
        QVERIFY(finished.wait(10000));
        QVERIFY(dialog->findChild<QLabel*>("updateResult")->text().contains(QLatin1String("404")));
        dialog->reject();
    }
    const auto reopened = open();
    QCOMPARE(reopened->findChild<QTabWidget*>("pages")->currentWidget()->objectName(), QStringLiteral("updates"));
    QCOMPARE(reopened->findChild<QLineEdit*>("updateAddress")->text(), address);
}

QTEST_MAIN(TestGeneralInfoDlg)
#include "tst_generalinfodlg.moc"
