#include "camera/asyncevent.h"
#include "camera/cirroexception.h"

#include "simdriverfixture.h"

#include <QtTest>

#include <atomic>
#include <memory>
#include <thread>

using namespace SimDriverFixture;

namespace {

constexpr std::uint32_t stopEvent = 10000;

int registeredEvents()
{
    return state().value("events").toInt();
}

} // namespace

class TestAsyncEvent : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void handlersRunOnTheWorkerForTheirEvent();
    void firstHandlerStartsLastOneStops();
    void refusedRegistrationThrowsTheDriverCode();
    void destructionWaitsForARunningHandler();
    void releaseFailuresAreWarnedNotThrown();
    void movedFromRegistrationReleasesNothing();
};

void TestAsyncEvent::init()
{
    QVERIFY(reset());
}

void TestAsyncEvent::cleanup()
{
    QCOMPARE(registeredEvents(), 0);
}

void TestAsyncEvent::handlersRunOnTheWorkerForTheirEvent()
{
    std::atomic<int> arrived{0}, removed{0};
    std::atomic<bool> onWorker{true};
    const auto testThread = std::this_thread::get_id();
    {
        AsyncEvent events(stopEvent);
        events.setHandler(PV_EVENT_DEVICE_ARRIVED, [&] {
            onWorker = onWorker && std::this_thread::get_id() != testThread;
            ++arrived;
        });
        events.setHandler(PV_EVENT_DEVICE_REMOVED, [&] { ++removed; });
        QCOMPARE(registeredEvents(), 4);

        std::uint32_t id = 0;
        QCOMPARE(pvsim_PlugCamera(R"({"kind": "usb"})", &id), PV_OK);
        QTRY_COMPARE(arrived.load(), 1);
        QCOMPARE(pvsim_ChangeCamera(id, R"({"temperature": 70.0})"), PV_OK); // 131: no handler
        QCOMPARE(pvsim_UnplugCamera(id), PV_OK);
        QTRY_COMPARE(removed.load(), 1);
    }
    QCOMPARE(arrived.load(), 1);
    QVERIFY(onWorker);
}

void TestAsyncEvent::firstHandlerStartsLastOneStops()
{
    AsyncEvent events(stopEvent);
    QVERIFY(!events.isRunning());
    events.setHandler(PV_EVENT_DEVICE_CHANGED, [] {});
    events.setHandler(PV_EVENT_DEVICE_ARRIVED, [] {});
    QVERIFY(events.isRunning());
    events.removeHandler(PV_EVENT_DEVICE_CHANGED);
    QVERIFY(events.isRunning());
    events.removeHandler(PV_EVENT_DEVICE_ARRIVED);
    QVERIFY(!events.isRunning());

    std::atomic<int> calls{0};
    events.setHandler(PV_EVENT_DEVICE_ARRIVED, [&] { ++calls; }); // starts again
    QVERIFY(events.isRunning());
    QCOMPARE(pvsim_PlugCamera(R"({"kind": "usb"})", nullptr), PV_OK);
    QTRY_COMPARE(calls.load(), 1);
}

void TestAsyncEvent::refusedRegistrationThrowsTheDriverCode()
{
    Event taken(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_ARRIVED); // the third registration will find it
    QVERIFY(taken.ok());
    {
        AsyncEvent events(stopEvent);
        try {
            events.setHandler(PV_EVENT_DEVICE_ARRIVED, [] {});
            QFAIL("no exception");
        } catch (const CirroException& e) {
            QCOMPARE(e.code(), PV_ERR_EVENT_EXISTS);
        }
        QVERIFY(!events.isRunning());
    }
    QCOMPARE(registeredEvents(), 1); // only the test's own event is left

    QCOMPARE(pvsim_FailOperation("pv_Event", PV_ERR_NO_MEMORY, 1), PV_OK);
    AsyncEvent refused(stopEvent);
    QVERIFY_EXCEPTION_THROWN(refused.setHandler(PV_EVENT_DEVICE_CHANGED, [] {}), CirroException);
}

void TestAsyncEvent::destructionWaitsForARunningHandler()
{
    std::atomic<bool> entered{false}, finished{false};
    auto events = std::make_unique<AsyncEvent>(stopEvent);
    events->setHandler(PV_EVENT_DEVICE_ARRIVED, [&] {
        entered = true;
        QTest::qSleep(300); // a slow handler
        finished = true;
    });
    QCOMPARE(pvsim_PlugCamera(R"({"kind": "usb"})", nullptr), PV_OK);
    QTRY_VERIFY(entered.load());
    events.reset();
    QVERIFY(finished.load());
}

void TestAsyncEvent::releaseFailuresAreWarnedNotThrown()
{
    auto events = std::make_unique<AsyncEvent>(stopEvent);
    events->setHandler(PV_EVENT_DEVICE_ARRIVED, [] {});
    events->removeHandler(PV_EVENT_DEVICE_ARRIVED); // stopped, still registered
    QCOMPARE(registeredEvents(), 4);

    QCOMPARE(pvsim_FailOperation("pv_Event", PV_ERR_UNKNOWN_HANDLE, 8), PV_OK);
    for (int i = 0; i < 4; ++i) {
        QTest::ignoreMessage(QtWarningMsg, "PV_EVENT_CMD_DISABLE: 103");
        QTest::ignoreMessage(QtWarningMsg, "PV_EVENT_CMD_EXIT: 103");
    }
    events.reset();
    QCOMPARE(registeredEvents(), 4); // the driver refused every release

    pvsim_ClearFailures();
    QVERIFY(reset());
    for (std::uint32_t number : {stopEvent, 129u, 130u, 131u})
        pv_Event(PV_DRIVER_HANDLE, PV_EVENT_EXIT, &number, sizeof number);
}

void TestAsyncEvent::movedFromRegistrationReleasesNothing()
{
    {
        EventRegistration first(PV_DRIVER_HANDLE, 4000);
        EventRegistration second(std::move(first));
        QCOMPARE(first.eventNumber(), 0u);
        QCOMPARE(second.eventNumber(), 4000u);
        EventRegistration third(PV_DRIVER_HANDLE, 4001);
        third = std::move(second); // releases 4001
        QCOMPARE(registeredEvents(), 1);
    }
    QCOMPARE(registeredEvents(), 0);
}

QTEST_GUILESS_MAIN(TestAsyncEvent)
#include "tst_asyncevent.moc"
