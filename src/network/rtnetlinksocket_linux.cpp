#include "network/rtnetlinksocket_linux.h"

#include <linux/neighbour.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

template <typename Message>
struct DumpRequest
{
    nlmsghdr header;
    Message message;
};

// A request for every entry of one kind; the caller sets the family.
template <typename Message>
DumpRequest<Message> dumpRequest(unsigned short type)
{
    DumpRequest<Message> request{};
    request.header.nlmsg_len = NLMSG_LENGTH(sizeof request.message);
    request.header.nlmsg_type = type;
    request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    return request;
}

constexpr std::size_t attributeSpace = 3 * RTA_SPACE(sizeof(quint32));

struct AddressRequest
{
    nlmsghdr header;
    ifaddrmsg message;
    alignas(NLMSG_ALIGNTO) char attributes[attributeSpace];
};

void appendAttribute(nlmsghdr* header, unsigned short type, quint32 networkOrderValue)
{
    auto* attribute = reinterpret_cast<rtattr*>(reinterpret_cast<char*>(header) + NLMSG_ALIGN(header->nlmsg_len));
    attribute->rta_type = type;
    attribute->rta_len = RTA_LENGTH(sizeof networkOrderValue);
    std::memcpy(RTA_DATA(attribute), &networkOrderValue, sizeof networkOrderValue);
    header->nlmsg_len = NLMSG_ALIGN(header->nlmsg_len) + RTA_ALIGN(attribute->rta_len);
}

quint32 netmask(int prefixLength)
{
    return prefixLength == 0 ? 0 : ~quint32(0) << (32 - prefixLength);
}

// IFA_LOCAL is the interface's own address; IFA_ADDRESS is the peer on
// point-to-point links and equal to it elsewhere.
bool readAddress(const ifaddrmsg* message, std::size_t length, quint32* address)
{
    bool found = false;
    const char* attributes = reinterpret_cast<const char*>(message) + NLMSG_ALIGN(sizeof *message);
    auto* attribute = reinterpret_cast<const rtattr*>(attributes);
    auto remaining = static_cast<unsigned int>(length - NLMSG_ALIGN(sizeof *message));
    for (; RTA_OK(attribute, remaining); attribute = RTA_NEXT(attribute, remaining)) {
        if ((attribute->rta_type == IFA_LOCAL || (attribute->rta_type == IFA_ADDRESS && !found))
            && RTA_PAYLOAD(attribute) == sizeof(quint32)) {
            quint32 value = 0;
            std::memcpy(&value, RTA_DATA(attribute), sizeof value);
            *address = ntohl(value);
            found = true;
        }
    }
    return found;
}

// false for anything but an IPv4 entry with a destination.
bool readNeighbour(const nlmsghdr* header, RtnetlinkSocket::Ipv4Neighbour* neighbour)
{
    if (header->nlmsg_len < NLMSG_LENGTH(sizeof(ndmsg)))
        return false;
    const auto* message = static_cast<const ndmsg*>(NLMSG_DATA(header));
    if (message->ndm_family != AF_INET)
        return false;
    neighbour->interfaceIndex = message->ndm_ifindex;
    neighbour->state = header->nlmsg_type == RTM_DELNEIGH ? 0 : message->ndm_state;
    neighbour->linkAddress.clear();
    bool hasAddress = false;
    auto* attribute = reinterpret_cast<const rtattr*>(reinterpret_cast<const char*>(message) + NLMSG_ALIGN(sizeof *message));
    auto remaining = static_cast<unsigned int>(NLMSG_PAYLOAD(header, sizeof *message));
    for (; RTA_OK(attribute, remaining); attribute = RTA_NEXT(attribute, remaining)) {
        if (attribute->rta_type == NDA_DST && RTA_PAYLOAD(attribute) == sizeof(quint32)) {
            quint32 value = 0;
            std::memcpy(&value, RTA_DATA(attribute), sizeof value);
            neighbour->address = ntohl(value);
            hasAddress = true;
        } else if (attribute->rta_type == NDA_LLADDR) {
            neighbour->linkAddress = QByteArray(static_cast<const char*>(RTA_DATA(attribute)),
                                                int(RTA_PAYLOAD(attribute)));
        }
    }
    return hasAddress;
}

} // namespace

RtnetlinkSocket::RtnetlinkSocket(Subscription subscription)
{
    m_fd = ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
    if (m_fd < 0) {
        m_openError = errno;
        return;
    }
    sockaddr_nl local{};
    local.nl_family = AF_NETLINK;
    if (subscription == Subscription::NeighbourChanges)
        local.nl_groups = RTMGRP_NEIGH;
    if (::bind(m_fd, reinterpret_cast<sockaddr*>(&local), sizeof local) < 0) {
        m_openError = errno;
        ::close(m_fd);
        m_fd = -1;
    }
}

RtnetlinkSocket::~RtnetlinkSocket()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

int RtnetlinkSocket::ipv4Addresses(int interfaceIndex, QVector<Ipv4Address>* addresses)
{
    auto request = dumpRequest<ifaddrmsg>(RTM_GETADDR);
    request.message.ifa_family = AF_INET;
    if (const int error = send(&request, request.header.nlmsg_len))
        return error;
    return receive([&](const nlmsghdr* header) {
        if (header->nlmsg_type != RTM_NEWADDR || header->nlmsg_len < NLMSG_LENGTH(sizeof(ifaddrmsg)))
            return;
        const auto* message = static_cast<const ifaddrmsg*>(NLMSG_DATA(header));
        Ipv4Address entry;
        if (message->ifa_family == AF_INET && int(message->ifa_index) == interfaceIndex
            && readAddress(message, NLMSG_PAYLOAD(header, 0), &entry.address)) {
            entry.prefixLength = message->ifa_prefixlen;
            addresses->append(entry);
        }
    });
}

int RtnetlinkSocket::addIpv4(int interfaceIndex, const Ipv4Address& address)
{
    return changeIpv4(RTM_NEWADDR, NLM_F_CREATE | NLM_F_REPLACE, interfaceIndex, address);
}

int RtnetlinkSocket::deleteIpv4(int interfaceIndex, const Ipv4Address& address)
{
    return changeIpv4(RTM_DELADDR, 0, interfaceIndex, address);
}

int RtnetlinkSocket::changeIpv4(int type, int flags, int interfaceIndex, const Ipv4Address& address)
{
    AddressRequest request{};
    request.header.nlmsg_len = NLMSG_LENGTH(sizeof request.message);
    request.header.nlmsg_type = static_cast<unsigned short>(type);
    request.header.nlmsg_flags = static_cast<unsigned short>(NLM_F_REQUEST | NLM_F_ACK | flags);
    request.message.ifa_family = AF_INET;
    request.message.ifa_prefixlen = static_cast<unsigned char>(address.prefixLength);
    request.message.ifa_scope = RT_SCOPE_UNIVERSE;
    request.message.ifa_index = static_cast<unsigned int>(interfaceIndex);
    appendAttribute(&request.header, IFA_LOCAL, htonl(address.address));
    appendAttribute(&request.header, IFA_ADDRESS, htonl(address.address));
    // /31 and /32 networks have no broadcast address.
    if (type == RTM_NEWADDR && address.prefixLength < 31)
        appendAttribute(&request.header, IFA_BROADCAST, htonl(address.address | ~netmask(address.prefixLength)));
    if (const int error = send(&request, request.header.nlmsg_len))
        return error;
    return receive([](const nlmsghdr*) {});
}

int RtnetlinkSocket::ipv4Neighbours(int interfaceIndex, QVector<Ipv4Neighbour>* neighbours)
{
    auto request = dumpRequest<ndmsg>(RTM_GETNEIGH);
    request.message.ndm_family = AF_INET;
    if (const int error = send(&request, request.header.nlmsg_len))
        return error;
    return receive([&](const nlmsghdr* header) {
        Ipv4Neighbour entry;
        if (header->nlmsg_type == RTM_NEWNEIGH && readNeighbour(header, &entry)
            && entry.interfaceIndex == interfaceIndex)
            neighbours->append(entry);
    });
}

int RtnetlinkSocket::routeInterface(quint32 destination, int* interfaceIndex)
{
    struct
    {
        nlmsghdr header;
        rtmsg message;
        alignas(NLMSG_ALIGNTO) char attributes[RTA_SPACE(sizeof(quint32))];
    } request{};
    request.header.nlmsg_len = NLMSG_LENGTH(sizeof request.message);
    request.header.nlmsg_type = RTM_GETROUTE;
    // Without a dump the kernel ends its answer with an acknowledgement only
    // when asked for one.
    request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_ACK;
    request.message.rtm_family = AF_INET;
    request.message.rtm_dst_len = 32;
    appendAttribute(&request.header, RTA_DST, htonl(destination));
    if (const int error = send(&request, request.header.nlmsg_len))
        return error;
    int found = 0;
    const int error = receive([&](const nlmsghdr* header) {
        if (header->nlmsg_type != RTM_NEWROUTE || header->nlmsg_len < NLMSG_LENGTH(sizeof(rtmsg)))
            return;
        const auto* message = static_cast<const rtmsg*>(NLMSG_DATA(header));
        auto* attribute = reinterpret_cast<const rtattr*>(RTM_RTA(message));
        auto remaining = static_cast<unsigned int>(RTM_PAYLOAD(header));
        for (; RTA_OK(attribute, remaining); attribute = RTA_NEXT(attribute, remaining)) {
            if (attribute->rta_type == RTA_OIF && RTA_PAYLOAD(attribute) == sizeof(quint32)) {
                quint32 index = 0;
                std::memcpy(&index, RTA_DATA(attribute), sizeof index);
                found = int(index);
            }
        }
    });
    if (error)
        return error;
    if (found == 0)
        return ENETUNREACH;
    *interfaceIndex = found;
    return 0;
}

int RtnetlinkSocket::waitForNeighbourChanges(std::chrono::milliseconds timeout, QVector<Ipv4Neighbour>* changes)
{
    if (m_fd < 0)
        return m_openError;
    pollfd ready{m_fd, POLLIN, 0};
    const int count = ::poll(&ready, 1, int(std::max<std::chrono::milliseconds::rep>(timeout.count(), 0)));
    if (count < 0)
        return errno == EINTR ? 0 : errno;
    if (count == 0)
        return 0;
    alignas(nlmsghdr) char buffer[32768];
    for (;;) {
        const ssize_t received = ::recv(m_fd, buffer, sizeof buffer, MSG_DONTWAIT);
        if (received < 0) {
            if (errno == EINTR)
                continue;
            return errno == EAGAIN || errno == EWOULDBLOCK ? 0 : errno;
        }
        auto remaining = static_cast<unsigned int>(received);
        for (auto* header = reinterpret_cast<nlmsghdr*>(buffer); NLMSG_OK(header, remaining);
             header = NLMSG_NEXT(header, remaining)) {
            Ipv4Neighbour entry;
            if ((header->nlmsg_type == RTM_NEWNEIGH || header->nlmsg_type == RTM_DELNEIGH)
                && readNeighbour(header, &entry))
                changes->append(entry);
        }
    }
}

int RtnetlinkSocket::send(const void* message, std::size_t size)
{
    if (m_fd < 0)
        return m_openError;
    auto* header = static_cast<nlmsghdr*>(const_cast<void*>(message));
    header->nlmsg_seq = ++m_sequence;
    sockaddr_nl kernel{};
    kernel.nl_family = AF_NETLINK;
    const ssize_t sent = ::sendto(m_fd, message, size, 0, reinterpret_cast<sockaddr*>(&kernel), sizeof kernel);
    return sent < 0 ? errno : 0;
}

template<typename OnMessage>
int RtnetlinkSocket::receive(OnMessage onMessage)
{
    alignas(nlmsghdr) char buffer[32768];
    for (;;) {
        const ssize_t received = ::recv(m_fd, buffer, sizeof buffer, 0);
        if (received < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        auto remaining = static_cast<unsigned int>(received);
        for (auto* header = reinterpret_cast<nlmsghdr*>(buffer); NLMSG_OK(header, remaining);
             header = NLMSG_NEXT(header, remaining)) {
            if (header->nlmsg_seq != m_sequence)
                continue;
            if (header->nlmsg_type == NLMSG_DONE)
                return 0;
            if (header->nlmsg_type == NLMSG_ERROR) {
                const auto* error = static_cast<const nlmsgerr*>(NLMSG_DATA(header));
                return -error->error;
            }
            onMessage(header);
        }
    }
}
