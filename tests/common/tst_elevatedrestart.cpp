#include "common/elevatedrestart.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestElevatedRestart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void argumentsKeepDisplayAndDriverConfiguration();
    void outcome_data();
    void outcome();
    void missingLauncherIsReported();

private:
    QString launcher(const QString& name, const QByteArray& body);
    QTemporaryDir dir;
};

void TestElevatedRestart::initTestCase()
{
    QVERIFY(dir.isValid());
}

QString TestElevatedRestart::launcher(const QString& name, const QByteArray& body)
{
    const QString path = dir.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    file.write("#!/bin/sh\n" + body + "\n");
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

void TestElevatedRestart::argumentsKeepDisplayAndDriverConfiguration()
{
    qputenv("DISPLAY", ":7");
    qputenv("CIRRO_CONFIG_ROOT", "/tmp/cirro config");
    qunsetenv("WAYLAND_DISPLAY");
    qputenv("HOME", "/root/elsewhere");
    const QStringList arguments = ElevatedRestart::launcherArguments("/opt/cm/cameramanager", "--daemon-config");
    QCOMPARE(arguments.first(), QStringLiteral("env"));
    QVERIFY(arguments.contains("DISPLAY=:7"));
    QVERIFY(arguments.contains("CIRRO_CONFIG_ROOT=/tmp/cirro config"));
    QVERIFY(!arguments.filter("WAYLAND_DISPLAY").size());
    QVERIFY(!arguments.filter("HOME=").size());
    QCOMPARE(arguments.mid(arguments.size() - 2), (QStringList{"/opt/cm/cameramanager", "--daemon-config"}));
}

void TestElevatedRestart::outcome_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("elevated");
    // A launcher that replaces itself with the program stands for an
    // authorised user; one that ends stands for a refusal.
    QTest::newRow("authorised") << QByteArray("exec sleep 3") << true;
    QTest::newRow("dismissed") << QByteArray("exit 126") << false;
    QTest::newRow("not authorised") << QByteArray("sleep 0.3; exit 127") << false;
}

void TestElevatedRestart::outcome()
{
    QFETCH(QByteArray, body);
    QFETCH(bool, elevated);
    ElevatedRestart restart(launcher(QStringLiteral("launcher-%1").arg(QTest::currentDataTag()).replace(' ', '-'), body));
    QCOMPARE(restart.start("--additional-func"), elevated);
    QCOMPARE(restart.errorText().isEmpty(), elevated);
}

void TestElevatedRestart::missingLauncherIsReported()
{
    ElevatedRestart restart(dir.filePath("no-such-launcher"));
    QVERIFY(!restart.start(QString()));
    QVERIFY(restart.errorText().contains("no-such-launcher"));
}

QTEST_GUILESS_MAIN(TestElevatedRestart)
#include "tst_elevatedrestart.moc"
