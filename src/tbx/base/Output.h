#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace korvane {

/// The place for a command's result. Bytes are collected and passed on in large pieces.
class Output {
public:
    virtual ~Output() = default;

    void Write(std::string_view bytes);
    /// Passes on what was collected; false when anything so far didn't arrive.
    bool Flush();
    /// False after something didn't arrive. What is written then is lost, so a long command may stop.
    bool Works() const { return works_; }

protected:
    /// Takes one piece; false when that failed.
    virtual bool Take(std::string_view piece) = 0;

private:
    std::string collected_;
    bool works_ = true;
};

/// Keeps all that was flushed in a text.
class StringOutput final : public Output {
public:
    const std::string& Bytes() const { return bytes_; }

private:
    bool Take(std::string_view piece) override;

    std::string bytes_;
};

/// Writes to a stream of the C library, which the caller owns.
class StreamOutput final : public Output {
public:
    explicit StreamOutput(std::FILE* stream) : stream_(stream) {}

    /// The `errno` of the write that failed; 0 when none did.
    int Error() const { return error_; }

private:
    bool Take(std::string_view piece) override;

    std::FILE* stream_;
    int error_ = 0;
};

} // namespace korvane
