// Preloaded by ./run on a machine with no display. Qt's VNC platform listens on every address of the machine;
// what asks for every address gets the loopback one here, so that only this machine can look at the shop.

#include <arpa/inet.h>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace {

using Bind = int (*)(int, const sockaddr*, socklen_t);

// What the program starts needs none of this.
[[gnu::constructor]] void keepToThisProcess() { unsetenv("LD_PRELOAD"); }

} // namespace

extern "C" int bind(int socket, const sockaddr* address, socklen_t length) noexcept
{
    static const auto next = reinterpret_cast<Bind>(dlsym(RTLD_NEXT, "bind"));
    if (address && address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in local;
        std::memcpy(&local, address, sizeof local);
        if (local.sin_addr.s_addr == htonl(INADDR_ANY))
            local.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return next(socket, reinterpret_cast<const sockaddr*>(&local), sizeof local);
    }
    if (address && address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        sockaddr_in6 local;
        std::memcpy(&local, address, sizeof local);
        // The mapped form of 127.0.0.1: a socket for both families hears viewers that ask for it by number.
        if (IN6_IS_ADDR_UNSPECIFIED(&local.sin6_addr))
            inet_pton(AF_INET6, "::ffff:127.0.0.1", &local.sin6_addr);
        return next(socket, reinterpret_cast<const sockaddr*>(&local), sizeof local);
    }
    return next(socket, address, length);
}
