#include "adapters/network/KernelRoutes.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "files/FileDescriptor.h"

namespace tavi {

namespace {

// Out of what nobody has been given (RFC 1112, class E; RFC 4291): no network nearby has it, so only a way out leads
// there.
constexpr const char* kSomewhere4 = "240.0.0.1";
constexpr const char* kSomewhere6 = "2000::1";

struct RouteRequest {
    nlmsghdr header = {};
    rtmsg route = {};
    rtattr attribute = {};
    std::array<char, sizeof(in6_addr)> address = {};
};

RouteRequest requestFor(int family) {
    RouteRequest request;
    const bool isFour = family == AF_INET;
    const std::size_t size = isFour ? sizeof(in_addr) : sizeof(in6_addr);
    request.route.rtm_family = static_cast<unsigned char>(family);
    request.route.rtm_dst_len = static_cast<unsigned char>(size * 8);
    request.attribute.rta_type = RTA_DST;
    request.attribute.rta_len = static_cast<unsigned short>(RTA_LENGTH(size));
    ::inet_pton(family, isFour ? kSomewhere4 : kSomewhere6, request.address.data());
    request.header.nlmsg_type = RTM_GETROUTE;
    request.header.nlmsg_flags = NLM_F_REQUEST;
    request.header.nlmsg_len = static_cast<std::uint32_t>(offsetof(RouteRequest, address) + size);
    return request;
}

/// The interface that a route leaves by; 0 for none.
int interfaceOf(const char* message, std::size_t size) {
    nlmsghdr header = {};
    std::memcpy(&header, message, std::min(sizeof(header), size));
    rtmsg route = {};
    std::size_t place = NLMSG_HDRLEN;
    if (size < place + sizeof(route) || header.nlmsg_type != RTM_NEWROUTE) {
        return 0;
    }
    std::memcpy(&route, message + place, sizeof(route));
    if (route.rtm_type != RTN_UNICAST) {
        return 0;
    }
    rtattr attribute = {};
    for (place += NLMSG_ALIGN(sizeof(route)); place + sizeof(attribute) <= size;
         place += RTA_ALIGN(attribute.rta_len)) {
        std::memcpy(&attribute, message + place, sizeof(attribute));
        if (attribute.rta_len < sizeof(attribute)) {
            break;
        }
        int index = 0;
        if (attribute.rta_type == RTA_OIF && place + RTA_LENGTH(sizeof(index)) <= size) {
            std::memcpy(&index, message + place + RTA_LENGTH(0), sizeof(index));
            return index;
        }
    }
    return 0;
}

bool hasCarrier(int interface) {
    const FileDescriptor socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    ifreq request = {};
    return socket.isValid() && ::if_indextoname(static_cast<unsigned>(interface), request.ifr_name) != nullptr &&
           ::ioctl(socket.get(), SIOCGIFFLAGS, &request) == 0 &&
           (request.ifr_flags & (IFF_UP | IFF_RUNNING)) == (IFF_UP | IFF_RUNNING);
}

std::optional<ReachabilityFlags> flagsOf(int netlink, int family) {
    const RouteRequest request = requestFor(family);
    std::array<char, 8192> answer = {};
    // The kernel answers before send() returns.
    const ssize_t sent = ::send(netlink, &request, request.header.nlmsg_len, 0);
    const ssize_t size = sent < 0 ? -1 : ::recv(netlink, answer.data(), answer.size(), MSG_DONTWAIT);
    if (size < 0) {
        return std::nullopt;
    }
    const int interface = interfaceOf(answer.data(), static_cast<std::size_t>(size));
    return ReachabilityFlags{.reachable = interface != 0,
                             .connectionRequired = interface != 0 && !hasCarrier(interface)};
}

}  // namespace

std::optional<ReachabilityFlags> kernelRouteFlags() {
    const FileDescriptor netlink(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE));
    if (!netlink.isValid()) {
        return std::nullopt;
    }
    const auto four = flagsOf(netlink.get(), AF_INET);
    const auto six = flagsOf(netlink.get(), AF_INET6);
    const bool isSixBetter = six && six->reachable && !(four && four->reachable && !four->connectionRequired);
    return isSixBetter ? six : four ? four : six;
}

}  // namespace tavi
