// The simulated driver reads its scenario file once, when the process first
// calls it: this program starts it with a broken file, before anything else.
#include "app/widgets/qcirrocameramanager.h"
#include "camera/cameralistmodel.h"
#include "camera/widgets/cameralist.h"

#include <cirro_api.h>

#include <QFile>
#include <QLabel>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class TestScenarioFallback : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void brokenScenarioIsNamedInTheWindow();

private:
    QTemporaryDir m_dir;
    QString m_scenario;
};

void TestScenarioFallback::initTestCase()
{
    Camera::registerMetaTypes();
    CoreStates::registerMetaType();
    QVERIFY(m_dir.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.filePath("settings"));
    m_scenario = m_dir.filePath("line4.json");
    QFile file(m_scenario);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"cameras": [{"kind": "usb", "colour": "red"}]})");
    file.close();
    qputenv("CIRRO_SIM_SCENARIO", m_scenario.toLocal8Bit());
}

void TestScenarioFallback::brokenScenarioIsNamedInTheWindow()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("using the built-in fleet instead"));
    QCirroCameramanager window;
    // The built-in fleet runs instead ...
    QVERIFY(window.cameraList()->model()->rowCount() > 10);
    // ... and the window says so, with the file and the problem.
    auto* note = window.findChild<QLabel*>(QStringLiteral("networkNote"));
    QVERIFY(note);
    QVERIFY(!note->isHidden());
    QVERIFY2(note->text().contains("The scenario file was not loaded, so the simulated driver shows its built-in "
                                   "cameras:"),
             qPrintable(note->text()));
    QVERIFY2(note->text().contains(m_scenario), qPrintable(note->text()));
    QVERIFY2(note->text().contains("colour"), qPrintable(note->text()));
    // It stays while the selection changes the status line.
    window.cameraList()->selectDevice(0);
    QVERIFY(!note->isHidden());
}

QTEST_MAIN(TestScenarioFallback)
#include "tst_scenariofallback.moc"
