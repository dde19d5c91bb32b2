#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sim {

// What a camera's serial interface tells about the camera.
struct SerialIdentity
{
    std::string model;
    std::string serial;
    std::uint32_t cameraId = 0;
    bool reachable = true; // false while the driver does not see the camera
};

// The line protocol of the cameras' serial interface. Requests are lines
// ending in CR, LF or both; each gets one answer line ending in CR LF:
//   "ID?"  ->  "ID <model>,<serial>,<camera ID>"; on the broadcast port the
//              cameras' entries separated by ";" ("ID" alone: none)
//   other  ->  "ERR unknown command"
// A camera the driver does not see answers "ERR camera not reachable"; a line
// longer than maxLine characters is dropped with "ERR line too long".
class SerialProtocol
{
public:
    static constexpr std::size_t maxLine = 128;

    // Takes what arrived and returns the answers to the complete lines in it.
    // cameras holds the port's camera, or every camera on the broadcast port.
    std::string receive(const std::string& text, const std::vector<SerialIdentity>& cameras, bool broadcast);

private:
    static std::string answer(const std::string& request, const std::vector<SerialIdentity>& cameras,
                              bool broadcast);

    std::string m_pending;
};

} // namespace sim
