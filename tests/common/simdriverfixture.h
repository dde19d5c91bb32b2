#pragma once

// Helpers for tests that drive the simulated camera driver through the camera
// API and its pvsim_ control interface.

#include <cirro_api.h>
#include <pvsim.h>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cstring>

#include <vector>

namespace SimDriverFixture {

// The built-in fleet, no armed failures, durations a thousand times shorter.
inline bool reset()
{
    return pvsim_ClearFailures() == PV_OK && pvsim_SetTimeScale(0.001) == PV_OK
           && pvsim_LoadScenario(nullptr) == PV_OK;
}

inline QJsonObject state()
{
    std::uint32_t required = 0;
    pvsim_GetState(nullptr, 0, &required);
    QByteArray text(int(required), '\0');
    if (pvsim_GetState(text.data(), required, &required) != PV_OK)
        return {};
    return QJsonDocument::fromJson(text.left(int(required) - 1)).object();
}

inline QJsonObject cameraState(std::uint32_t deviceId)
{
    for (const QJsonValue& camera : state().value("cameras").toArray()) {
        if (camera.toObject().value("deviceId").toInt() == int(deviceId))
            return camera.toObject();
    }
    return {};
}

inline std::vector<pv_CameraListEntry> list()
{
    std::int32_t count = 0;
    if (pv_GetNumberOfCameras(&count) != PV_OK || count < 1)
        return {};
    QByteArray buffer(int(count * sizeof(pv_CameraListEntry) + PV_CAMERA_LIST_HEADER_SIZE), '\0');
    std::memcpy(buffer.data(), &count, sizeof count);
    if (pv_GetCameraList(buffer.data()) != PV_OK)
        return {};
    std::memcpy(&count, buffer.constData(), sizeof count);
    const auto* entries = reinterpret_cast<const pv_CameraListEntry*>(buffer.constData() + 4);
    return std::vector<pv_CameraListEntry>(entries, entries + count);
}

inline pv_DeviceInformation deviceInfo(std::uint32_t deviceId, std::int32_t* result = nullptr)
{
    pv_DeviceInformation info{};
    const std::int32_t r = pv_DeviceInfo(deviceId | PV_DEVICE_ID_FLAG, PV_DEVINFO_READ, &info, sizeof info);
    if (result)
        *result = r;
    return info;
}

inline QByteArray lastErrorText()
{
    std::int32_t code = 0;
    const char* text = nullptr;
    if (pv_GetError(PV_DRIVER_HANDLE, &code, &text) != PV_OK || !text)
        return {};
    return QByteArray(text);
}

// An event initialised and enabled on a handle for the lifetime of the object.
class Event
{
public:
    Event(std::uint32_t handle, std::uint32_t number, bool manualReset = false)
        : m_handle(handle)
        , m_number(number)
    {
        pv_EventInit init{number, manualReset ? 1u : 0u, 0u};
        m_ok = pv_Event(handle, PV_EVENT_INIT, &init, sizeof init) == PV_OK
               && pv_Event(handle, PV_EVENT_ENABLE, &m_number, sizeof m_number) == PV_OK;
    }
    ~Event()
    {
        pv_Event(m_handle, PV_EVENT_DISABLE, &m_number, sizeof m_number);
        pv_Event(m_handle, PV_EVENT_EXIT, &m_number, sizeof m_number);
    }
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    bool ok() const { return m_ok; }

private:
    std::uint32_t m_handle;
    std::uint32_t m_number;
    bool m_ok = false;
};

// An empty configuration root that keeps the host's driver configuration out
// of a test; use() points the driver at it again (before every test).
class EmptyConfigRoot
{
public:
    bool isValid() const { return m_dir.isValid(); }
    QString path() const { return m_dir.path(); }
    void use() const { qputenv("CIRRO_CONFIG_ROOT", m_dir.path().toLocal8Bit()); }

private:
    QTemporaryDir m_dir;
};

// One wait for any of the numbers; returns the code, writes the signalled event.
inline std::int32_t wait(std::uint32_t handle, std::vector<std::uint32_t> numbers, std::uint32_t timeoutMs,
                         std::uint32_t* signalled = nullptr, bool all = false)
{
    pv_EventWait block{};
    block.events = numbers.data();
    block.count = std::uint32_t(numbers.size());
    block.waitForAll = all ? 1 : 0;
    block.timeoutMs = timeoutMs;
    const std::int32_t result = pv_Event(handle, PV_EVENT_WAIT, &block, sizeof block);
    if (signalled)
        *signalled = block.signalled;
    return result;
}

} // namespace SimDriverFixture
