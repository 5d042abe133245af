#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace korvane {

/// A local socket: a connection with another process on this computer, or the place where others connect.
/// Nothing that fails throws; a socket that couldn't be made isn't open.
class LocalSocket {
public:
    LocalSocket() = default;
    LocalSocket(LocalSocket&& other) noexcept;
    LocalSocket& operator=(LocalSocket&& other) noexcept;
    ~LocalSocket() { Close(); }

    /// Waits until the other process has room for one more connection.
    static LocalSocket ConnectTo(const std::filesystem::path& path);
    /// A place that only this user can connect to. Whatever was at the path is removed.
    static LocalSocket ListenAt(const std::filesystem::path& path);
    /// The next connection that waits at this place. It isn't open when there is none. Never waits.
    LocalSocket Accept() const;

    bool IsOpen() const { return descriptor_ >= 0; }
    int Descriptor() const { return descriptor_; }
    void Close();

    /// Waits until all bytes are sent.
    bool Send(std::string_view bytes) const;
    /// Waits for a line and returns it with its end. The result is empty when the connection ends before, or
    /// when the line is longer than `longest`.
    std::string ReadLine(std::size_t longest) const;

    enum class Arrival { Bytes, Nothing, End };
    /// Shows what has arrived, at most as much as `bytes` has room for, and cuts `bytes` to it. Never waits.
    Arrival Peek(std::string& bytes) const;
    /// Takes away bytes that were shown.
    void Skip(std::size_t count) const;

private:
    explicit LocalSocket(int descriptor) : descriptor_(descriptor) {}

    int descriptor_ = -1;
};

} // namespace korvane
