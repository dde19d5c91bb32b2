#include "serialprotocol.h"

namespace sim {

namespace {

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string entry(const SerialIdentity& camera)
{
    return camera.model + ',' + camera.serial + ',' + std::to_string(camera.cameraId);
}

// Lines the driver sends itself: a client terminal left echoing hands them
// back, and answering them would go back and forth for ever.
bool isOwnAnswer(const std::string& line)
{
    return line.rfind("ID ", 0) == 0 || line.rfind("ERR ", 0) == 0;
}

} // namespace

std::string SerialProtocol::receive(const std::string& text, const std::vector<SerialIdentity>& cameras,
                                    bool broadcast)
{
    std::string answers;
    for (const char c : text) {
        if (c != '\r' && c != '\n') {
            if (m_pending.size() < maxLine + 1)
                m_pending += c;
            continue;
        }
        const std::string line = trimmed(m_pending);
        const bool tooLong = m_pending.size() > maxLine;
        m_pending.clear();
        if (tooLong)
            answers += "ERR line too long\r\n";
        else if (!line.empty() && !isOwnAnswer(line))
            answers += answer(line, cameras, broadcast) + "\r\n";
    }
    return answers;
}

std::string SerialProtocol::answer(const std::string& request, const std::vector<SerialIdentity>& cameras,
                                   bool broadcast)
{
    if (request != "ID?")
        return "ERR unknown command";
    if (broadcast) {
        std::string list;
        for (const SerialIdentity& camera : cameras) {
            if (camera.reachable)
                list += (list.empty() ? "" : ";") + entry(camera);
        }
        return list.empty() ? "ID" : "ID " + list;
    }
    if (cameras.empty() || !cameras.front().reachable)
        return "ERR camera not reachable";
    return "ID " + entry(cameras.front());
}

} // namespace sim
