#include "ptyport.h"

#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace sim {

namespace {

Result systemFailure(const std::string& what)
{
    return failure(PV_ERR_GENERAL, what + ": " + std::strerror(errno));
}

std::string linkTarget(const std::string& link)
{
    char target[PATH_MAX];
    const ssize_t length = ::readlink(link.c_str(), target, sizeof target - 1);
    return length < 0 ? std::string() : std::string(target, std::size_t(length));
}

} // namespace

Result PtyPort::open(const std::string& linkPath, std::unique_ptr<PtyPort>& port)
{
    std::unique_ptr<PtyPort> created(new PtyPort);
    created->m_controller = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (created->m_controller < 0)
        return systemFailure("no pseudo-terminal");
    if (::grantpt(created->m_controller) != 0 || ::unlockpt(created->m_controller) != 0)
        return systemFailure("pseudo-terminal not usable");
    char name[128];
    if (::ptsname_r(created->m_controller, name, sizeof name) != 0)
        return systemFailure("pseudo-terminal without name");
    created->m_terminalPath = name;
    created->m_terminal = ::open(name, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (created->m_terminal < 0)
        return systemFailure("pseudo-terminal " + created->m_terminalPath);
    // A terminal that echoed would hand the driver's answers back to it.
    termios settings{};
    if (::tcgetattr(created->m_terminal, &settings) == 0) {
        ::cfmakeraw(&settings);
        ::tcsetattr(created->m_terminal, TCSANOW, &settings);
    }
    struct stat existing {};
    if (::lstat(linkPath.c_str(), &existing) == 0 && S_ISLNK(existing.st_mode))
        ::unlink(linkPath.c_str());
    if (::symlink(name, linkPath.c_str()) != 0)
        return systemFailure("link " + linkPath);
    created->m_linkPath = linkPath;
    port = std::move(created);
    return success();
}

PtyPort::~PtyPort()
{
    // Closed before the link goes, so that a port without link has hung up.
    if (m_terminal >= 0)
        ::close(m_terminal);
    if (m_controller >= 0)
        ::close(m_controller);
    // Another driver process may have linked the name to a port of its own since.
    if (!m_linkPath.empty() && linkTarget(m_linkPath) == m_terminalPath)
        ::unlink(m_linkPath.c_str());
}

std::string PtyPort::read()
{
    std::string text;
    char chunk[256];
    for (;;) {
        const ssize_t got = ::read(m_controller, chunk, sizeof chunk);
        if (got <= 0)
            return text;
        text.append(chunk, std::size_t(got));
    }
}

void PtyPort::write(const std::string& text)
{
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t put = ::write(m_controller, text.data() + done, text.size() - done);
        if (put <= 0)
            return;
        done += std::size_t(put);
    }
}

PortWaiter::PortWaiter()
    : m_wakeFd(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
}

PortWaiter::~PortWaiter()
{
    if (m_wakeFd >= 0)
        ::close(m_wakeFd);
}

void PortWaiter::wake()
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(m_wakeFd, &one, sizeof one);
}

std::vector<int> PortWaiter::wait(const std::vector<int>& fds)
{
    std::vector<pollfd> polled{{m_wakeFd, POLLIN, 0}};
    for (int fd : fds)
        polled.push_back({fd, POLLIN, 0});
    std::vector<int> readable;
    if (::poll(polled.data(), nfds_t(polled.size()), -1) <= 0)
        return readable;
    if (polled[0].revents & POLLIN) {
        std::uint64_t count = 0;
        [[maybe_unused]] const ssize_t drained = ::read(m_wakeFd, &count, sizeof count);
    }
    for (std::size_t i = 1; i < polled.size(); ++i) {
        if (polled[i].revents & POLLIN)
            readable.push_back(polled[i].fd);
    }
    return readable;
}

} // namespace sim
