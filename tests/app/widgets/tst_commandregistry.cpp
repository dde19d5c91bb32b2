#include "app/widgets/commandregistry.h"

#include <QAction>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using Command = ControlStates::Command;

class TestCommandRegistry : public QObject
{
    Q_OBJECT

signals:
    void request(int value);

private slots:
    void enabledNeedsHandlerAndUsable_data();
    void enabledNeedsHandlerAndUsable();
    void boundButtonFollowsAndTriggers();
    void requestsCountAsHandled();
};

void TestCommandRegistry::enabledNeedsHandlerAndUsable_data()
{
    QTest::addColumn<bool>("handled");
    QTest::addColumn<bool>("usable");
    QTest::newRow("neither") << false << false;
    QTest::newRow("handled, not usable") << true << false;
    QTest::newRow("usable, no handler") << false << true;
    QTest::newRow("both") << true << true;
}

void TestCommandRegistry::enabledNeedsHandlerAndUsable()
{
    QFETCH(bool, handled);
    QFETCH(bool, usable);
    CommandRegistry commands;
    int runs = 0;
    // The order of the two calls must not matter.
    commands.setUsable(usable ? QSet<Command>{Command::SupportFile} : QSet<Command>{});
    if (handled)
        commands.setHandler(Command::SupportFile, [&runs] { ++runs; });
    QAction* action = commands.action(Command::SupportFile);
    QCOMPARE(action, commands.action(Command::SupportFile));
    QCOMPARE(action->isEnabled(), handled && usable);
    QCOMPARE(commands.isHandled(Command::SupportFile), handled);
    action->trigger();
    QCOMPARE(runs, handled && usable ? 1 : 0);
    QVERIFY(!commands.action(Command::EthService)->isEnabled());
}

void TestCommandRegistry::boundButtonFollowsAndTriggers()
{
    CommandRegistry commands;
    QPushButton button;
    commands.bind(&button, Command::UploadFirmware);
    QVERIFY(!button.isEnabled());

    int runs = 0;
    commands.setHandler(Command::UploadFirmware, [&runs] { ++runs; });
    QVERIFY(!button.isEnabled());
    commands.setUsable({Command::UploadFirmware, Command::GeneralInformation});
    QVERIFY(button.isEnabled());
    button.click();
    QCOMPARE(runs, 1);

    // A new selection that does not allow the command disables the button again.
    commands.setUsable({Command::GeneralInformation});
    QVERIFY(!button.isEnabled());
    button.click();
    QCOMPARE(runs, 1);
}

void TestCommandRegistry::requestsCountAsHandled()
{
    CommandRegistry commands;
    QVERIFY(!commands.isHandled(Command::IdentifyCamera));
    QList<int> received;
    commands.handleRequest(Command::IdentifyCamera, this, &TestCommandRegistry::request, this,
                           [&received](int value) { received << value; });
    QVERIFY(commands.isHandled(Command::IdentifyCamera));
    QVERIFY(!commands.isHandled(Command::DeleteReadOnlyDevice));
    emit request(7);
    QCOMPARE(received, QList<int>{7});
}

QTEST_MAIN(TestCommandRegistry)
#include "tst_commandregistry.moc"
