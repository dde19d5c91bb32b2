#include "camera/camera.h"
#include "camera/statusassessment.h"

#include <QtTest>

#include <memory>

namespace {

constexpr quint32 ready = 0x1, freeBit = 0x100, paired = 0x400;
constexpr quint32 available = 0x1, compatible = 0x20, adapterDhcp = 0x40, initialized = 0x08000000;
constexpr quint32 toBeRemoved = 0x80000000, runtimeError = 0x80000000;
constexpr quint32 starter = PV_VERSION(3, 2, 1);

// The words the assessment reads, on top of a healthy, free, reachable camera.
struct Words
{
    quint32 deviceId = 1000;
    quint8 typeCode = 0x8A;
    quint32 inUse = 0;
    quint32 listStatus = 0;
    quint32 status = ready | freeBit;
    quint32 control = initialized | compatible | available;
    quint16 link = 1000;
    quint32 adapterLink = 1000;
    quint32 cameraStarter = starter;
    quint32 image = starter;
    quint8 flags = 0;
    quint16 dhcp = 0;
    qint32 result = 0;
};

Camera cameraWith(const Words& w)
{
    auto record = std::make_unique<pv_ExtendedDeviceInformation>();
    record->deviceId = w.deviceId;
    record->typeCode = w.typeCode;
    record->inUse = w.inUse;
    record->status = w.listStatus;
    record->devInfoResult = w.result;
    record->info.deviceStatus = w.status;
    record->info.deviceControlStatus = w.control;
    record->info.linkSpeed = w.link;
    record->info.u.eth.adapterLinkSpeed = w.adapterLink;
    record->info.starterFirmware = w.cameraStarter;
    record->info.driverFirmwareImage = w.image;
    record->info.deviceFlags = w.flags;
    record->info.u.eth.dhcpState = w.dhcp;
    const char16_t model[] = u"CR-G5";
    std::copy(std::begin(model), std::end(model), record->model);
    return Camera(*record);
}

Words usb(quint8 typeCode, quint16 link)
{
    Words w;
    w.deviceId = 3;
    w.typeCode = typeCode;
    w.link = link;
    return w;
}

Words with(Words w, void (*change)(Words&))
{
    change(w);
    return w;
}

const QString status = QStringLiteral("Status of device %1: ");

} // namespace

Q_DECLARE_METATYPE(Words)

class TestStatusAssessment : public QObject
{
    Q_OBJECT

private slots:
    void decision_data();
    void decision();
    void noCamera();
    void unsupportedModelWarning();
    void pictures_data();
    void pictures();
    void colouredMessage_data();
    void colouredMessage();
};

void TestStatusAssessment::decision_data()
{
    QTest::addColumn<Words>("words");
    QTest::addColumn<QString>("message"); // "..." stands for anything, a leading "@" for the device prefix
    QTest::addColumn<QColor>("colour");

    const QColor orange(QStringLiteral("orange"));
    const QString correct = "@The camera is configured correctly and can be opened.";
    const QString slower = correct + " Please note that this device currently is using a lower speed than supported by it.";

    QTest::newRow("USB opened") << with(usb(0x62, 4000), [](Words& w) { w.inUse = 1; })
                                << "@You have opened the camera" << QColor(Qt::darkGreen);
    QTest::newRow("USB 3 at 480") << usb(0x62, 480) << slower << orange;
    QTest::newRow("USB 2 at 480") << usb(0x40, 480) << correct << QColor(Qt::black);
    QTest::newRow("USB 3 at 5G") << usb(0x60, 4000) << correct << QColor(Qt::black);
    QTest::newRow("USB no full speed") << with(usb(0x40, 480), [](Words& w) { w.listStatus = 2; })
                                       << "@This camera does not support Fullspeed USB." << QColor(Qt::red);
    QTest::newRow("USB hardware") << with(usb(0x40, 480), [](Words& w) { w.listStatus = 1; })
                                  << "@An upload of the camera firmware is not possible. The hardware of your camera "
                                     "is probably not compatible to the installed Parvel Cirro driver. Your hardware "
                                     "is not supported by driver versions higher than 3.00."
                                  << QColor(Qt::red);
    QTest::newRow("USB both") << with(usb(0x40, 480), [](Words& w) { w.listStatus = 3; })
                              << "@...higher than 3.00. In addition, the camera does not support Fullspeed USB."
                              << QColor(Qt::red);
    QTest::newRow("USB ignores transfer failure") << with(usb(0x40, 480), [](Words& w) { w.result = 5; }) << correct
                                                  << QColor(Qt::black);

    Words sdk = usb(0xE1, 4000);
    sdk.deviceId = 2000;
    QTest::newRow("sibling opened") << with(sdk, [](Words& w) { w.inUse = 1; }) << "@You have opened the camera"
                                    << QColor(Qt::darkGreen);
    QTest::newRow("sibling service firmware")
        << with(sdk, [](Words& w) { w.listStatus = 1; })
        << "@The camera cannot be opened because it is running with service firmware. Either start the camera in "
           "runtime using the \"parvel_devicecommand\" tool (--reset-to-runtime) or update the camera firmware, e.g. "
           "using the \"parvel_deviceupdate\" tool.\n"
        << QColor(Qt::red);
    QTest::newRow("sibling IP range") << with(sdk, [](Words& w) { w.listStatus = 8; })
                                      << "@The camera is using an invalid IP range and can't be opened. ..."
                                      << QColor(Qt::red);
    QTest::newRow("sibling fine") << sdk << correct << QColor(Qt::black);

    const Words gige;
    auto unreachable = [](Words w) {
        w.control &= ~available;
        return w;
    };
    QTest::newRow("GigE correct") << gige << correct << QColor(Qt::black);
    QTest::newRow("GigE not initialised") << with(unreachable(gige), [](Words& w) { w.control &= ~initialized; })
                                          << "@Internal driver error. Please reinstall the Parvel Cirro setup."
                                          << QColor(Qt::red);
    QTest::newRow("GigE to be removed") << with(unreachable(gige), [](Words& w) { w.control |= toBeRemoved | 6; })
                                        << "@Internal driver error. Please reinstall the Parvel Cirro setup."
                                        << QColor(Qt::red);
    QTest::newRow("GigE corrupted") << with(unreachable(gige), [](Words& w) { w.status |= runtimeError; })
                                    << "@Internal device error. The runtime firmware is corrupted."
                                    << QColor(Qt::red);
    QTest::newRow("GigE incompatible") << with(unreachable(gige), [](Words& w) { w.control &= ~compatible; })
                                       << "@The device is not compatible to the driver. ..." << QColor(Qt::red);
    QTest::newRow("GigE adapter DHCP") << with(unreachable(gige), [](Words& w) { w.control |= adapterDhcp; })
                                       << "@The network adapter is configured to use DHCP. ..." << QColor(Qt::red);
    QTest::newRow("GigE small packets") << unreachable(gige)
                                        << "@The network adapter is not configured to use packets larger than the "
                                           "normal size of 1,5 KB.Please set the packet size to at least 2 KB."
                                        << QColor(Qt::red);
    QTest::newRow("GigE waiting for DHCP") << with(unreachable(gige), [](Words& w) { w.status &= ~ready, w.dhcp = 0x15; })
                                           << "@Waiting for DHCPOFFER." << QColor(Qt::red);
    QTest::newRow("GigE DHCP error") << with(unreachable(gige), [](Words& w) { w.status &= ~ready, w.dhcp = 0x17; })
                                     << "@Internal device error. Please upload a new starter firmware."
                                     << QColor(Qt::red);
    QTest::newRow("GigE opened here") << with(unreachable(gige), [](Words& w) { w.status = ready | paired, w.control |= 0x1000; })
                                      << "@You have opened the camera" << QColor(Qt::darkGreen);
    QTest::newRow("GigE other host") << with(unreachable(gige), [](Words& w) { w.status = ready | paired; })
                                     << "@The camera is being used by another host and cannot be opened at the moment."
                                     << QColor(Qt::red);
    QTest::newRow("read-only held") << with(unreachable(gige), [](Words& w) { w.deviceId = 1500, w.status = ready; })
                                    << "@The camera is not opened by another host and cannot be opened at the moment."
                                    << QColor(Qt::red);
    QTest::newRow("read-only fine") << with(gige, [](Words& w) { w.deviceId = 1999; }) << correct << QColor(Qt::black);
    QTest::newRow("firmware differs, no upload pending") << with(gige, [](Words& w) { w.cameraStarter = PV_VERSION(3, 1, 4); })
                                                         << "" << QColor(Qt::black);
    QTest::newRow("firmware upload pending")
        << with(gige, [](Words& w) { w.cameraStarter = PV_VERSION(3, 1, 4), w.flags = 0x84; })
        << "@The starter firmware of the camera is incompatible to the driver.\n... The requested starter firmware "
           "version is 3.02.0001"
        << QColor(Qt::red);
    QTest::newRow("no firmware image") << with(gige, [](Words& w) { w.image = 0, w.flags = 0x80; })
                                       << "@Firmware image is not available or corrupted. Please reinstall the Parvel "
                                          "Cirro setup."
                                       << QColor(Qt::red);
    QTest::newRow("boot boost") << with(gige, [](Words& w) { w.status = ready | paired; })
                                << "@The camera is currently running in the boot boost mode. It is configured "
                                   "correctly and can be opened."
                                << QColor(Qt::black);
    QTest::newRow("100 Mbit adapter") << with(gige, [](Words& w) { w.adapterLink = 100; }) << slower << orange;
    QTest::newRow("100 Mbit camera") << with(gige, [](Words& w) { w.link = 100; }) << slower << orange;
    QTest::newRow("unknown kind") << with(gige, [](Words& w) { w.deviceId = 2500; })
                                  << "@The device is of a kind that this version of the Camera Manager does not "
                                     "know, so it can't be used here."
                                  << QColor(Qt::red);
    QTest::newRow("transfer failure wins") << with(unreachable(gige), [](Words& w) { w.result = -7; })
                                           << "Transfer failed (Errorcode: -7): API DLL or kernel driver "
                                              "incompatible. Please reinstall the setup."
                                           << QColor(Qt::red);
}

void TestStatusAssessment::decision()
{
    QFETCH(Words, words);
    QFETCH(QString, message);
    QFETCH(QColor, colour);

    const Camera camera = cameraWith(words);
    const StatusAssessment assessment = StatusAssessment::of(&camera, {});
    QString expected = message;
    if (expected.startsWith(QLatin1Char('@')))
        expected = status.arg(words.deviceId) + expected.mid(1);
    const QStringList pieces = expected.split(QStringLiteral("..."));
    QVERIFY2(expected.isEmpty() ? assessment.message.isEmpty() :assessment.message.startsWith(pieces.first()) && assessment.message.endsWith(pieces.last()),
             qPrintable(assessment.message));
    if (pieces.size() == 1)
        QCOMPARE(assessment.message, expected);
    QCOMPARE(assessment.colour, colour);
    QVERIFY(assessment.unsupportedWarning.isEmpty());
}

void TestStatusAssessment::noCamera()
{
    const StatusAssessment assessment = StatusAssessment::of(nullptr, {QStringLiteral("CR-G5")});
    QCOMPARE(assessment.message, QStringLiteral("No camera list available"));
    QVERIFY(assessment.unsupportedWarning.isEmpty());
}

void TestStatusAssessment::unsupportedModelWarning()
{
    const Camera camera = cameraWith(Words{});
    QCOMPARE(StatusAssessment::of(&camera, {QStringLiteral("CR-G5")}).unsupportedWarning,
             QStringLiteral("Attention: You are using a camera model which is no longer supported by the current "
                            "driver version."));
    QVERIFY(StatusAssessment::of(&camera, {QStringLiteral("CR-G5X")}).unsupportedWarning.isEmpty());
}

void TestStatusAssessment::pictures_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<int>("typeCode");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<bool>("clears"); // else an empty picture keeps the one shown
    QTest::newRow("USB 0x40") << 1u << 0x40 << ":/images/cam_usb.png" << false;
    QTest::newRow("USB 0x65 shares 0x62") << 1u << 0x65 << ":/images/cam_62.png" << false;
    QTest::newRow("USB unknown code") << 1u << 0x7F << "" << false;
    QTest::newRow("sibling") << 2001u << 0xE2 << ":/images/cam_summit.png" << false;
    QTest::newRow("read-only") << 1600u << 0x8A << ":/images/cam_pmc.png" << false;
    QTest::newRow("GigE 0x86 shares 0x81") << 1001u << 0x86 << ":/images/cam_81.png" << false;
    QTest::newRow("GigE other") << 1001u << 0x90 << ":/images/cam_eth.png" << false;
    QTest::newRow("unknown kind") << 2600u << 0x8A << "" << true;
}

void TestStatusAssessment::pictures()
{
    QFETCH(quint32, deviceId);
    QFETCH(int, typeCode);
    Words w;
    w.deviceId = deviceId;
    w.typeCode = quint8(typeCode);
    const Camera camera = cameraWith(w);
    QTEST(StatusAssessment::pictureOf(camera), "picture");
    const StatusAssessment assessment = StatusAssessment::of(&camera, {});
    QTEST(assessment.picture, "picture");
    QTEST(assessment.clearsPicture, "clears");
}

void TestStatusAssessment::colouredMessage_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("coloured");
    QTest::newRow("plain") << "Hello" << "<font color='#008000'>Hello</font>";
    QTest::newRow("line break shows as one") << "incompatible to the driver.\nAn automatic upload"
                                             << "<font color='#008000'>incompatible to the driver.<br>An automatic "
                                                "upload</font>";
    QTest::newRow("markup characters stay text") << "a <b> & c" << "<font color='#008000'>a &lt;b&gt; &amp; c</font>";
}

void TestStatusAssessment::colouredMessage()
{
    StatusAssessment assessment;
    QFETCH(QString, message);
    assessment.message = message;
    assessment.colour = Qt::darkGreen;
    QTEST(assessment.coloured(), "coloured");
}

QTEST_GUILESS_MAIN(TestStatusAssessment)
#include "tst_statusassessment.moc"
