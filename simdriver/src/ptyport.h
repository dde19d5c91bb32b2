#pragma once

#include "simresult.h"

#include <memory>
#include <string>
#include <vector>

namespace sim {

// One virtual serial port: a pseudo-terminal whose terminal side is published
// as a symbolic link. The driver keeps the terminal side open itself, so that
// the port never hangs up between two clients, and works the controller side
// without blocking. Closing the port removes the link, if it is still ours.
class PtyPort
{
public:
    // Creates the pseudo-terminal in raw mode and links it at linkPath,
    // replacing an earlier link of that name.
    static Result open(const std::string& linkPath, std::unique_ptr<PtyPort>& port);
    ~PtyPort();
    PtyPort(const PtyPort&) = delete;
    PtyPort& operator=(const PtyPort&) = delete;

    const std::string& linkPath() const { return m_linkPath; }
    const std::string& terminalPath() const { return m_terminalPath; }
    int controllerFd() const { return m_controller; }

    // What clients wrote since the last call; empty when nothing waits.
    std::string read();
    // Writes without waiting; what does not fit (a client that reads nothing) is lost.
    void write(const std::string& text);

private:
    PtyPort() = default;

    int m_controller = -1;
    int m_terminal = -1;
    std::string m_terminalPath;
    std::string m_linkPath;
};

// Wakes a thread that waits for port input.
class PortWaiter
{
public:
    PortWaiter();
    ~PortWaiter();
    PortWaiter(const PortWaiter&) = delete;
    PortWaiter& operator=(const PortWaiter&) = delete;

    bool isValid() const { return m_wakeFd >= 0; }
    void wake();
    // Waits until one of the descriptors has input or wake() was called;
    // returns the descriptors with input.
    std::vector<int> wait(const std::vector<int>& fds);

private:
    int m_wakeFd = -1;
};

} // namespace sim
