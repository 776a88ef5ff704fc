#include <arpa/inet.h>
#include <cerrno>
#include <ifaddrs.h>
#include <netinet/in.h>
#include <set>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

#include <gtest/gtest.h>

// Tests that talk over the network talk to themselves, and reach nobody else.

namespace {

class Socket
{
public:
    Socket(int family, int type) : descriptor_(socket(family, type | SOCK_CLOEXEC, 0)) { }
    explicit Socket(int descriptor) : descriptor_(descriptor) { }
    ~Socket() { close(descriptor_); }
    Socket(const Socket &) = delete;
    Socket &operator=(const Socket &) = delete;

    int descriptor() const { return descriptor_; }

private:
    int descriptor_;
};

sockaddr_in address(const char *host, in_port_t port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = port;
    inet_pton(AF_INET, host, &address.sin_addr);
    return address;
}

sockaddr_in6 address6(const char *host)
{
    sockaddr_in6 address{};
    address.sin6_family = AF_INET6;
    address.sin6_port = htons(9);
    inet_pton(AF_INET6, host, &address.sin6_addr);
    return address;
}

/// Looks for a way to an address, without sending anything; the reason why there is none, or 0.
template <typename Address>
int wayTo(const Address &destination)
{
    const Socket socket(reinterpret_cast<const sockaddr &>(destination).sa_family, SOCK_DGRAM);
    const auto *address = reinterpret_cast<const sockaddr *>(&destination);
    return connect(socket.descriptor(), address, sizeof destination) == 0 ? 0 : errno;
}

std::set<std::string> interfaces()
{
    std::set<std::string> names;
    ifaddrs *first = nullptr;
    if (getifaddrs(&first) != 0)
        return names;
    for (const ifaddrs *entry = first; entry; entry = entry->ifa_next)
        names.insert(entry->ifa_name);
    freeifaddrs(first);
    return names;
}

} // namespace

TEST(ThePrivateNetwork, carriesATestToItselfOverLoopback)
{
    const Socket server(AF_INET, SOCK_STREAM);
    sockaddr_in here = address("127.0.0.1", 0);
    socklen_t size = sizeof here;
    auto *asAny = reinterpret_cast<sockaddr *>(&here);
    ASSERT_EQ(bind(server.descriptor(), asAny, size), 0);
    ASSERT_EQ(listen(server.descriptor(), 1), 0);
    ASSERT_EQ(getsockname(server.descriptor(), asAny, &size), 0);

    const Socket client(AF_INET, SOCK_STREAM);
    ASSERT_EQ(connect(client.descriptor(), asAny, size), 0);
    const Socket accepted(accept(server.descriptor(), nullptr, nullptr));
    ASSERT_EQ(send(client.descriptor(), "here", 4, MSG_NOSIGNAL), 4);
    char bytes[4] = {};
    ASSERT_EQ(recv(accepted.descriptor(), bytes, sizeof bytes, MSG_WAITALL), 4);
    EXPECT_EQ(std::string(bytes, sizeof bytes), "here");
}

TEST(ThePrivateNetwork, hasNoOtherWay)
{
    EXPECT_EQ(interfaces(), std::set<std::string>{"lo"});
    // Addresses that are kept for documents belong to nobody.
    EXPECT_EQ(wayTo(address("192.0.2.1", htons(9))), ENETUNREACH);
    EXPECT_EQ(wayTo(address6("2001:db8::1")), ENETUNREACH);
}
