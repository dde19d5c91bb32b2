#include "simdriverfixture.h"

#include <QElapsedTimer>
#include <QtTest>

#include <atomic>
#include <thread>

using namespace SimDriverFixture;

namespace {

const char* usbCamera = R"({"kind": "usb", "serial": "EVT-1"})";

std::uint32_t plugUsbCamera()
{
    std::uint32_t id = 0;
    pvsim_PlugCamera(usbCamera, &id);
    return id;
}

} // namespace

class TestSimEvents : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void waitHonoursItsTimeout();
    void setWakesAWaiterAtOnce();
    void driverEventsWakeWaitersOfEveryThread();
    void otherOperationsRunWhileAThreadWaits();
    void disabledEventIsNotSignalled();
    void autoResetIsConsumedManualResetStays();
    void initialStateAndWaitForAll();
    void deviceScopeSeesItsOwnCameraOnly();
    void exitEndsAWaitWithAnError();
    void lifecycleErrors();
};

void TestSimEvents::init()
{
    QVERIFY(reset());
}

void TestSimEvents::waitHonoursItsTimeout()
{
    Event event(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_ARRIVED);
    QVERIFY(event.ok());

    QElapsedTimer timer;
    timer.start();
    std::uint32_t signalled = 77;
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_ARRIVED}, 150, &signalled), PV_ERR_TIMEOUT);
    QVERIFY2(timer.elapsed() >= 150, qPrintable(QString::number(timer.elapsed())));
    QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(signalled, 0u);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_ARRIVED}, 0), PV_ERR_TIMEOUT);
}

void TestSimEvents::setWakesAWaiterAtOnce()
{
    const std::uint32_t stop = 10000;
    Event event(PV_DRIVER_HANDLE, stop);
    Event arrived(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_ARRIVED);
    QVERIFY(event.ok() && arrived.ok());

    std::int32_t result = -1;
    std::uint32_t signalled = 0;
    qint64 waited = -1;
    std::thread waiter([&] {
        QElapsedTimer timer;
        timer.start();
        result = wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_ARRIVED, stop}, 20000, &signalled);
        waited = timer.elapsed();
    });
    QTest::qSleep(100); // let the waiter block first
    std::uint32_t number = stop;
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_SET, &number, sizeof number), PV_OK);
    waiter.join();

    QCOMPARE(result, PV_OK);
    QCOMPARE(signalled, stop);
    QVERIFY2(waited < 5000, qPrintable(QString::number(waited)));
}

void TestSimEvents::driverEventsWakeWaitersOfEveryThread()
{
    Event arrived(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_ARRIVED);
    Event removed(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_REMOVED);
    QVERIFY(arrived.ok() && removed.ok());

    std::atomic<std::uint32_t> plugged{0};
    std::thread plugger([&] { plugged = plugUsbCamera(); });
    std::uint32_t signalled = 0;
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_REMOVED, PV_EVENT_DEVICE_ARRIVED}, 10000, &signalled), PV_OK);
    plugger.join();
    QCOMPARE(signalled, PV_EVENT_DEVICE_ARRIVED);

    std::thread unplugger([&] { pvsim_UnplugCamera(plugged); });
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_REMOVED, PV_EVENT_DEVICE_ARRIVED}, 10000, &signalled), PV_OK);
    unplugger.join();
    QCOMPARE(signalled, PV_EVENT_DEVICE_REMOVED);
}

void TestSimEvents::otherOperationsRunWhileAThreadWaits()
{
    Event event(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_CHANGED);
    QVERIFY(event.ok());

    std::atomic<bool> waiting{true};
    std::int32_t result = -1;
    std::thread waiter([&] {
        result = wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_CHANGED}, 1500);
        waiting = false;
    });
    int calls = 0;
    while (waiting && calls < 50) {
        QCOMPARE(int(list().size()), 17);
        ++calls;
    }
    waiter.join();
    QCOMPARE(result, PV_ERR_TIMEOUT);
    QCOMPARE(calls, 50); // all done while the wait still ran
}

void TestSimEvents::disabledEventIsNotSignalled()
{
    Event event(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_ARRIVED);
    QVERIFY(event.ok());
    std::uint32_t number = PV_EVENT_DEVICE_ARRIVED;
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_DISABLE, &number, sizeof number), PV_OK);

    plugUsbCamera();
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_SET, &number, sizeof number), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_ARRIVED}, 100), PV_ERR_TIMEOUT);

    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_ENABLE, &number, sizeof number), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_ARRIVED}, 0), PV_ERR_TIMEOUT); // nothing was kept
    pvsim_PlugCamera(R"({"kind": "usb", "serial": "EVT-2"})", nullptr);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_ARRIVED}, 1000), PV_OK);
}

void TestSimEvents::autoResetIsConsumedManualResetStays()
{
    Event automatic(PV_DRIVER_HANDLE, 500);
    Event manual(PV_DRIVER_HANDLE, 501, true);
    QVERIFY(automatic.ok() && manual.ok());
    for (std::uint32_t number : {500u, 501u})
        QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_SET, &number, sizeof number), PV_OK);

    QCOMPARE(wait(PV_DRIVER_HANDLE, {500}, 0), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {500}, 0), PV_ERR_TIMEOUT);

    QCOMPARE(wait(PV_DRIVER_HANDLE, {501}, 0), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {501}, 0), PV_OK);
    std::uint32_t number = 501;
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_RESET, &number, sizeof number), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {501}, 0), PV_ERR_TIMEOUT);
}

void TestSimEvents::initialStateAndWaitForAll()
{
    pv_EventInit init{600, 0, 1};
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_INIT, &init, sizeof init), PV_OK);
    Event second(PV_DRIVER_HANDLE, 601);
    QVERIFY(second.ok());

    QCOMPARE(wait(PV_DRIVER_HANDLE, {600, 601}, 50, nullptr, true), PV_ERR_TIMEOUT);
    std::uint32_t number = 601;
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_SET, &number, sizeof number), PV_OK);
    std::uint32_t signalled = 0;
    QCOMPARE(wait(PV_DRIVER_HANDLE, {600, 601}, 50, &signalled, true), PV_OK);
    QCOMPARE(signalled, 600u);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {600}, 0), PV_ERR_TIMEOUT); // both were consumed

    number = 600;
    pv_Event(PV_DRIVER_HANDLE, PV_EVENT_EXIT, &number, sizeof number);
}

void TestSimEvents::deviceScopeSeesItsOwnCameraOnly()
{
    const std::uint32_t watched = plugUsbCamera();
    const std::uint32_t other = plugUsbCamera();
    const std::uint32_t handle = watched | PV_DEVICE_ID_FLAG;
    Event changed(handle, PV_EVENT_DEVICE_CHANGED);
    Event removed(handle, PV_EVENT_DEVICE_REMOVED);
    Event globalRemoved(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_REMOVED);
    QVERIFY(changed.ok() && removed.ok() && globalRemoved.ok());

    QCOMPARE(pvsim_ChangeCamera(other, R"({"temperature": 50.0})"), PV_OK);
    QCOMPARE(wait(handle, {PV_EVENT_DEVICE_CHANGED}, 50), PV_ERR_TIMEOUT);
    QCOMPARE(pvsim_ChangeCamera(watched, R"({"temperature": 50.0})"), PV_OK);
    QCOMPARE(wait(handle, {PV_EVENT_DEVICE_CHANGED}, 1000), PV_OK);
    QCOMPARE(pvsim_ChangeCamera(watched, R"({"temperature": 50.0})"), PV_OK);
    QCOMPARE(wait(handle, {PV_EVENT_DEVICE_CHANGED}, 50), PV_ERR_TIMEOUT); // nothing changed

    QCOMPARE(pvsim_UnplugCamera(watched), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_REMOVED}, 1000), PV_OK);
    QCOMPARE(wait(handle, {PV_EVENT_DEVICE_REMOVED}, 1000), PV_OK);
}

void TestSimEvents::exitEndsAWaitWithAnError()
{
    pv_EventInit init{700, 0, 0};
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_INIT, &init, sizeof init), PV_OK);
    std::int32_t result = PV_OK;
    std::thread waiter([&] { result = wait(PV_DRIVER_HANDLE, {700}, 20000); });
    QTest::qSleep(100); // let the waiter block first
    std::uint32_t number = 700;
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_EXIT, &number, sizeof number), PV_OK);
    waiter.join();
    QCOMPARE(result, PV_ERR_EVENT_NOT_INITIALIZED);
}

void TestSimEvents::lifecycleErrors()
{
    std::uint32_t number = 800;
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_ENABLE, &number, sizeof number), PV_ERR_EVENT_NOT_INITIALIZED);
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_SET, &number, sizeof number), PV_ERR_EVENT_NOT_INITIALIZED);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {800}, 0), PV_ERR_EVENT_NOT_INITIALIZED);
    {
        Event event(PV_DRIVER_HANDLE, 800);
        QVERIFY(event.ok());
        pv_EventInit again{800, 0, 0};
        QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_INIT, &again, sizeof again), PV_ERR_EVENT_EXISTS);
        QVERIFY(!lastErrorText().isEmpty());
    }
    QCOMPARE(pv_Event(PV_DRIVER_HANDLE, PV_EVENT_EXIT, &number, sizeof number), PV_ERR_EVENT_NOT_INITIALIZED);
    QCOMPARE(state().value("events").toInt(), 0); // every test released what it made
}

QTEST_APPLESS_MAIN(TestSimEvents)
#include "tst_simevents.moc"
