#include "platform/native/FileCopy.h"

#include <windows.h>

#include <string>

namespace korvane {

namespace {

namespace fs = std::filesystem;

std::error_code Error(DWORD error) {
    return {static_cast<int>(error), std::system_category()};
}

/// The error of a call that returns 0 when it fails.
std::error_code ErrorOf(BOOL succeeded) {
    return succeeded != 0 ? std::error_code() : Error(GetLastError());
}

bool Has(DWORD attributes, DWORD wanted) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & wanted) != 0;
}

DWORD CALLBACK BetweenSteps(LARGE_INTEGER total, LARGE_INTEGER copied, LARGE_INTEGER, LARGE_INTEGER, DWORD,
                            DWORD, HANDLE, HANDLE, LPVOID options) {
    const auto& betweenSteps = static_cast<const CopyOptions*>(options)->betweenSteps;
    const bool between = copied.QuadPart > 0 && copied.QuadPart < total.QuadPart;
    if (between && betweenSteps) betweenSteps();
    return PROGRESS_CONTINUE;
}

/// The state of one copy while it is made.
class PlainFileCopy {
public:
    PlainFileCopy(const fs::path& from, const fs::path& to, const CopyOptions& options)
        : from_(from), to_(to), options_(options) {}

    std::error_code Run() {
        target_ = GetFileAttributesW(to_.c_str());
        std::error_code error = LookAtBoth();
        if (!error) error = FindUnfinishedName();
        if (!error) error = Complete();
        return IsDiskFull(error) && HasRoomInstead() ? CopyInstead() : error;
    }

private:
    bool IsThere() const { return target_ != INVALID_FILE_ATTRIBUTES; }

    std::error_code LookAtBoth() const {
        const DWORD source = GetFileAttributesW(from_.c_str());
        if (source == INVALID_FILE_ATTRIBUTES) return Error(GetLastError());
        if (Has(source | (IsThere() ? target_ : 0), FILE_ATTRIBUTE_DIRECTORY))
            return Error(ERROR_ACCESS_DENIED);
        if (Has(target_, FILE_ATTRIBUTE_READONLY)) return Error(ERROR_ACCESS_DENIED);
        std::error_code ignored;
        return fs::equivalent(from_, to_, ignored) ? Error(ERROR_FILE_EXISTS) : std::error_code();
    }

    std::error_code FindUnfinishedName() {
        constexpr int kTries = 1000;
        const std::wstring start = L".korvane-" + std::to_wstring(GetCurrentProcessId()) + L"-";
        for (int number = 0; number < kTries; ++number) {
            copy_ = to_.parent_path() / (start + std::to_wstring(number));
            if (GetFileAttributesW(copy_.c_str()) == INVALID_FILE_ATTRIBUTES) return {};
        }
        return Error(ERROR_FILE_EXISTS);
    }

    std::error_code Complete() {
        BOOL cancelled = FALSE;
        std::error_code error =
            ErrorOf(CopyFileExW(from_.c_str(), copy_.c_str(), &BetweenSteps,
                                const_cast<CopyOptions*>(&options_), &cancelled, 0)); // NOLINT: C interface
        if (!error && (options_.flush || IsThere())) error = Flush();
        if (!error) error = TakeName();
        if (error) Discard();
        return error;
    }

    std::error_code TakeName() const {
        const DWORD replace = IsThere() ? MOVEFILE_REPLACE_EXISTING : 0;
        const DWORD flush = options_.flush ? MOVEFILE_WRITE_THROUGH : 0;
        return ErrorOf(MoveFileExW(copy_.c_str(), to_.c_str(), replace | flush));
    }

    /// The copy of a read-only file is read-only too. It is opened for flushing with this attribute switched
    /// off.
    std::error_code Flush() const {
        const DWORD attributes = GetFileAttributesW(copy_.c_str());
        SetFileAttributesW(copy_.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
        const HANDLE file = CreateFileW(copy_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE) return Error(GetLastError());
        const std::error_code error = ErrorOf(FlushFileBuffers(file));
        CloseHandle(file);
        SetFileAttributesW(copy_.c_str(), attributes);
        return error;
    }

    void Discard() const {
        SetFileAttributesW(copy_.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(copy_.c_str());
    }

    /// Whether the copy fits after the target is removed. A link frees no room.
    bool HasRoomInstead() const {
        if (!IsThere() || Has(target_, FILE_ATTRIBUTE_REPARSE_POINT)) return false;
        std::error_code error;
        const auto needed = fs::file_size(from_, error);
        const auto freed = fs::file_size(to_, error);
        const auto room = fs::space(to_.parent_path(), error).available;
        return !error && needed <= room + freed;
    }

    /// The target itself is renamed and then becomes the unfinished copy, so that there is never half a file
    /// under the target's name.
    std::error_code CopyInstead() {
        if (MoveFileExW(to_.c_str(), copy_.c_str(), MOVEFILE_REPLACE_EXISTING) == 0)
            return Error(GetLastError());
        target_ = INVALID_FILE_ATTRIBUTES;
        return Complete();
    }

    const fs::path& from_;
    const fs::path& to_;
    const CopyOptions& options_;
    DWORD target_ = INVALID_FILE_ATTRIBUTES;
    fs::path copy_;
};

} // namespace

std::error_code CopyPlainFile(const fs::path& from, const fs::path& to, const CopyOptions& options) {
    return PlainFileCopy(from, to, options).Run();
}

bool IsDiskFull(const std::error_code& error) {
    return error == Error(ERROR_DISK_FULL) || error == Error(ERROR_HANDLE_DISK_FULL);
}

std::error_code RenameToFree(const fs::path& from, const fs::path& to) {
    return ErrorOf(MoveFileExW(from.c_str(), to.c_str(), 0));
}

} // namespace korvane
