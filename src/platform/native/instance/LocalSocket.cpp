#include "platform/native/instance/LocalSocket.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace korvane {

namespace {

constexpr int kNone = -1;

int NewSocket(int mode) {
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | mode, 0);
}

/// A path that is too long for the address is cut, so that the call that gets the address fails.
sockaddr_un Address(const std::filesystem::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.native().copy(address.sun_path, sizeof address.sun_path - 1);
    return address;
}

/// Calls again what a signal has interrupted.
template <class Call>
auto Finish(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

bool Connect(int descriptor, const sockaddr_un& address) {
    return Finish([&] {
               return connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address);
           }) == 0;
}

bool Listen(int descriptor, const sockaddr_un& address) {
    return fchmod(descriptor, S_IRUSR | S_IWUSR) == 0 &&
           bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
           listen(descriptor, SOMAXCONN) == 0;
}

} // namespace

LocalSocket::LocalSocket(LocalSocket&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, kNone)) {}

LocalSocket& LocalSocket::operator=(LocalSocket&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

void LocalSocket::Close() {
    if (IsOpen()) close(descriptor_);
    descriptor_ = kNone;
}

LocalSocket LocalSocket::ConnectTo(const std::filesystem::path& path) {
    LocalSocket socket(NewSocket(0));
    if (!socket.IsOpen() || !Connect(socket.descriptor_, Address(path))) return {};
    return socket;
}

LocalSocket LocalSocket::ListenAt(const std::filesystem::path& path) {
    unlink(path.c_str());
    LocalSocket socket(NewSocket(SOCK_NONBLOCK));
    if (!socket.IsOpen() || !Listen(socket.descriptor_, Address(path))) return {};
    return socket;
}

LocalSocket LocalSocket::Accept() const {
    return LocalSocket(accept4(descriptor_, nullptr, nullptr, SOCK_CLOEXEC));
}

bool LocalSocket::Send(std::string_view bytes) const {
    while (!bytes.empty()) {
        const auto sent = Finish([&] { return send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL); });
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

std::string LocalSocket::ReadLine(std::size_t longest) const {
    std::string line;
    char byte = 0;
    while (line.size() < longest && Finish([&] { return recv(descriptor_, &byte, 1, 0); }) > 0) {
        line += byte;
        if (byte == '\n') return line;
    }
    return {};
}

LocalSocket::Arrival LocalSocket::Peek(std::string& bytes) const {
    const auto shown =
        Finish([&] { return recv(descriptor_, bytes.data(), bytes.size(), MSG_PEEK | MSG_DONTWAIT); });
    bytes.resize(shown > 0 ? static_cast<std::size_t>(shown) : 0);
    if (shown > 0) return Arrival::Bytes;
    return shown < 0 && (errno == EAGAIN || errno == EWOULDBLOCK) ? Arrival::Nothing : Arrival::End;
}

void LocalSocket::Skip(std::size_t count) const {
    std::string taken(count, '\0');
    if (count > 0) Finish([&] { return recv(descriptor_, taken.data(), taken.size(), MSG_DONTWAIT); });
}

} // namespace korvane
