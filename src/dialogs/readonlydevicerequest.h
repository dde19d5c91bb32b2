#pragma once

#include "camera/camera.h"
#include "common/result.h"

#include <cirro_api.h>

#include <functional>

// Asks the ETH service to add a read-only device: a second, passive receiver
// of a GigE camera's multicast stream, which the driver then lists with a
// device ID from 1500.
class ReadOnlyDeviceRequest final
{
public:
    // pv_EthConfig, or what a test puts in its place.
    using EthConfig = std::function<std::int32_t(std::uint32_t handle, std::uint32_t command, void* buffer,
                                                 std::uint32_t size)>;

    // cameraId 1 to 254; mode 1 to 4, the error handling of the receiver.
    ReadOnlyDeviceRequest(const Camera& camera, quint32 cameraId, quint32 mode);

    // The 16-byte block: the camera's multicast group and the address of the
    // local adapter that receives it, both in network byte order, then the
    // camera ID and the mode. The driver finds the sending camera by the group
    // and the adapter.
    pv_ReadOnlyRequest block() const;
    // Sends the block; once the service has taken it, has the service apply
    // its configuration (whose answer does not count). A refusal carries the
    // driver's code and the text errorText() gives for it.
    Result send(const EthConfig& ethConfig = pv_EthConfig) const;

    // The driver's own text of its last failure on this thread; when the
    // driver gives none, a text for the code (empty for codes without one).
    static QString errorText(std::int32_t code);
    static QString codeText(std::int32_t code);

private:
    quint32 m_multicastIp;
    quint32 m_adapterIp;
    quint32 m_cameraId;
    quint32 m_mode;
};
