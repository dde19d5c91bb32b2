#include "app/languagecatalog.h"
#include "app/languageloader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestLanguageCatalog : public QObject
{
    Q_OBJECT

private slots:
    void onlyApplicationTranslationsAreListed();
    void defaultLanguageIsCutAtTheLastUnderscore();
    void loaderInstallsOnlyWhatLoads();
};

void TestLanguageCatalog::onlyApplicationTranslationsAreListed()
{
    QTemporaryDir dir;
    for (const char* name : {"cameramanager_de.qm", "cameramanager_zh_CN.qm", "CameraManager_fr.qm",
                             "cameramanager_it.ts", "qtbase_de.qm", "cameramanager_pt_BR.qm.bak"}) {
        QFile file(dir.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const QList<LanguageCatalog::Entry> entries = LanguageCatalog::scan(dir.path());
    QCOMPARE(entries.size(), 2);
    QCOMPARE(entries.at(0).locale, QStringLiteral("de"));
    QCOMPARE(entries.at(0).label, QStringLiteral("Deutsch"));
    QCOMPARE(entries.at(0).iconPath, QStringLiteral(":/images/lang/de.png"));
    QCOMPARE(entries.at(1).locale, QStringLiteral("zh_CN"));
    QCOMPARE(entries.at(1).label, QStringLiteral("简体中文 (China)"));
    QVERIFY(LanguageCatalog::scan(dir.filePath("missing")).isEmpty());
}

void TestLanguageCatalog::defaultLanguageIsCutAtTheLastUnderscore()
{
    const QLocale saved;
    QLocale::setDefault(QLocale("de_DE"));
    const QString system = QLocale::system().name();
    QLocale::setDefault(saved);
    const QString language = LanguageCatalog::defaultLanguage();
    QVERIFY(!language.contains('_') || system.count('_') > 1);
    QVERIFY(system.startsWith(language));
}

void TestLanguageCatalog::loaderInstallsOnlyWhatLoads()
{
    QTemporaryDir dir;
    QVERIFY(QFile::copy(QStringLiteral(CIRRO_TRANSLATION_DIR "/cameramanager_de.qm"),
                        dir.filePath("cameramanager_de.qm")));
    LanguageLoader loader(dir.path());
    loader.load("de");
    QCOMPARE(loader.currentLanguage(), QStringLiteral("de"));
    QVERIFY(loader.hasCodeTranslation());
    QVERIFY(!loader.hasQtTranslation());
    QCOMPARE(QCoreApplication::translate("QCirroCameramanager", "Close"), QStringLiteral("Schließen"));
    QCOMPARE(QLocale().name(), QStringLiteral("de_DE"));

    loader.load("fr");
    QVERIFY(!loader.hasCodeTranslation());
    QCOMPARE(QCoreApplication::translate("QCirroCameramanager", "Close"), QStringLiteral("Close"));
}

QTEST_GUILESS_MAIN(TestLanguageCatalog)
#include "tst_languagecatalog.moc"
