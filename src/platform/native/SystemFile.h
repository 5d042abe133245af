#pragma once

#include "platform/native/SystemCalls.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

namespace korvane {

/// An open file without a buffer. The destructor closes it.
class SystemFile {
public:
    /// Takes over an open file. Without an argument no file is open.
    explicit SystemFile(int file = system_calls::kNoFile) : file_(file) {}
    /// If the file can't be opened, the result isn't open and `error` has the reason.
    static SystemFile OpenToRead(const std::filesystem::path& path, std::error_code& error);
    static SystemFile OpenToWrite(const std::filesystem::path& path,
                                  const std::optional<system_calls::FileRights>& rights,
                                  std::error_code& error);

    /// Fails when anything has the name already, so that no link leads the bytes elsewhere.
    static SystemFile CreateNew(const std::filesystem::path& path,
                                const std::optional<system_calls::FileRights>& rights,
                                std::error_code& error);
    /// Fails for a pipe, a device or a socket, without waiting for it.
    static SystemFile OpenPlainToRead(const std::filesystem::path& path, std::error_code& error);

    SystemFile(SystemFile&& other) noexcept;
    SystemFile& operator=(SystemFile&& other) noexcept;
    ~SystemFile();

    bool IsOpen() const { return file_ != system_calls::kNoFile; }
    int Number() const { return file_; }
    /// The size of the file, or 0 for something without a size, such as a pipe.
    std::size_t Size() const { return system_calls::SizeOf(file_); }
    /// Returns the number of bytes that were read. It is less than `size` only at the end of the file and
    /// after an error.
    std::size_t Read(char* buffer, std::size_t size, std::error_code& error);
    void Write(std::string_view bytes, std::error_code& error);
    void Close(std::error_code& error);

private:
    SystemFile(int file, std::error_code& error);

    int file_;
};

/// The reason why the last system call failed.
std::error_code LastSystemError();

} // namespace korvane
