// The camera API blocks are exchanged as raw bytes with a library built by
// someone else, so their layouts are checked against byte images made from the
// published byte positions, not against the structs themselves.
#include <cirro_api.h>

#include <QtTest>

#include <cstring>
#include <vector>

extern "C" int cirroApiHeaderCompilesAsC(void);

namespace {

using Bytes = std::vector<unsigned char>;

template <typename T>
void put(Bytes& bytes, std::size_t offset, T value)
{
    std::memcpy(&bytes.at(offset), &value, sizeof value);
}

void putText(Bytes& bytes, std::size_t offset, const char* text, std::size_t length)
{
    std::memcpy(&bytes.at(offset), text, length);
}

} // namespace

class TestApiLayout : public QObject
{
    Q_OBJECT

private slots:
    void headerIsValidC();
    void listEntryFromBytes();
    void listBufferStride();
    void waitBlockSignalledWord();
};

void TestApiLayout::headerIsValidC()
{
    QCOMPARE(cirroApiHeaderCompilesAsC(), 640);
}

void TestApiLayout::listEntryFromBytes()
{
    Bytes bytes(112, 0);
    put<quint32>(bytes, 0, 17);
    put<quint32>(bytes, 4, 1003);
    put<quint32>(bytes, 8, 0x42);
    put<quint32>(bytes, 12, 1);
    putText(bytes, 16, "SN-0123456789ABC", 16); // no terminator: fills the field
    putText(bytes, 32, "CR-G2040", 8);
    put<quint32>(bytes, 48, 0x80000003u);
    put<quint8>(bytes, 52, 0x8A);
    put<quint8>(bytes, 53, 0x40);
    put<quint8>(bytes, 54, 0x08);
    put<quint8>(bytes, 56, 0x77);
    put<quint8>(bytes, 57, 2);
    putText(bytes, 60, "CR-G2040 GigE colour", 20);

    pv_CameraListEntry entry;
    std::memcpy(&entry, bytes.data(), sizeof entry);
    QCOMPARE(entry.cameraId, 17u);
    QCOMPARE(entry.deviceId, 1003u);
    QCOMPARE(entry.sensorId, 0x42u);
    QCOMPARE(entry.inUse, 1u);
    QCOMPARE(QByteArray(entry.serialNumber, 16), QByteArray("SN-0123456789ABC"));
    QCOMPARE(QByteArray(entry.model), QByteArray("CR-G2040"));
    QCOMPARE(entry.status, 0x80000003u);
    QCOMPARE(entry.typeCode, quint8(0x8A));
    QCOMPARE(entry.typeFlag, quint8(0x40));
    QCOMPARE(entry.interfaceByte, quint8(0x08));
    QCOMPARE(entry.linkByte, quint8(0x77));
    QCOMPARE(entry.infoSource, quint8(PV_INFO_SOURCE_GENERIC));
    QCOMPARE(QByteArray(entry.fullModelName), QByteArray("CR-G2040 GigE colour"));
}

void TestApiLayout::listBufferStride()
{
    // A buffer for n entries is n * 112 + 4 bytes: entry i starts at 4 + i * 112.
    constexpr int count = 3;
    Bytes buffer(count * 112 + 4, 0);
    put<qint32>(buffer, 0, count);
    for (int i = 0; i < count; ++i)
        put<quint32>(buffer, 4 + i * 112 + 4, 1000u + i);

    const auto* entries =
        reinterpret_cast<const pv_CameraListEntry*>(buffer.data() + PV_CAMERA_LIST_HEADER_SIZE);
    for (int i = 0; i < count; ++i)
        QCOMPARE(entries[i].deviceId, 1000u + i);
}

void TestApiLayout::waitBlockSignalledWord()
{
    pv_EventWait wait{};
    wait.signalled = 130;
    quint32 words[8];
    static_assert(sizeof words == sizeof wait, "the wait block is eight words");
    std::memcpy(words, &wait, sizeof wait);
    QCOMPARE(words[5], 130u); // the sixth 32-bit word
}

QTEST_APPLESS_MAIN(TestApiLayout)
#include "tst_apilayout.moc"
