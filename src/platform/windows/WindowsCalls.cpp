#include "platform/native/SystemCalls.h"

#include <windows.h>
#include <direct.h>
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace korvane::system_calls {

namespace {

namespace fs = std::filesystem;

/// The calls below take a count of 32 bits.
unsigned AtOnce(std::size_t size) {
    return static_cast<unsigned>(std::min<std::size_t>(size, 1u << 30));
}

bool IsReadOnlyFile(const fs::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0 &&
           (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

int ErrnoOf(DWORD error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ? ENOENT : EACCES;
}

} // namespace

int OpenToRead(const fs::path& path) {
    return _wopen(path.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
}

int OpenToWrite(const fs::path& path, const std::optional<FileRights>&) {
    return _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_TRUNC | _O_BINARY | _O_NOINHERIT,
                  _S_IREAD | _S_IWRITE);
}

int CreateNew(const fs::path& path, const std::optional<FileRights>&) {
    return _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                  _S_IREAD | _S_IWRITE);
}

int OpenPlainToRead(const fs::path& path) {
    return OpenToRead(path);
}

std::ptrdiff_t ReadSome(int file, char* buffer, std::size_t size) {
    return _read(file, buffer, AtOnce(size));
}

std::ptrdiff_t WriteSome(int file, const char* bytes, std::size_t size) {
    return _write(file, bytes, AtOnce(size));
}

bool Close(int file) {
    return _close(file) == 0;
}

std::size_t SizeOf(int file) {
    struct _stat64 status {};
    if (_fstat64(file, &status) != 0 || (status.st_mode & _S_IFMT) != _S_IFREG) return 0;
    return static_cast<std::size_t>(status.st_size);
}

bool IsWritable(const fs::path& path) {
    if (IsReadOnlyFile(path)) {
        errno = EACCES;
        return false;
    }
    // The read-only attribute says nothing about folders or about the user's permissions. For a folder,
    // FILE_WRITE_DATA is the permission to create files in it.
    const HANDLE file =
        CreateFileW(path.c_str(), FILE_WRITE_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        errno = ErrnoOf(GetLastError());
        return false;
    }
    CloseHandle(file);
    return true;
}

std::optional<FileRights> RightsOf(const fs::path&) {
    return std::nullopt;
}

std::optional<FileRights> OwnersAlone(const std::optional<FileRights>&) {
    return std::nullopt;
}

bool IsForOwnerAlone(int) {
    // The user's folders are closed to others on Windows, and files are as their folder.
    return true;
}

void AllowMemoryDump(bool) {
    // A dump is written only where the administrator asks for it.
}

bool IsAdministrator() {
    return false;
}

bool IsTrusted(const fs::path&) {
    // The folders of the program and of the user are no one else's on Windows.
    return true;
}

bool IsProgram(const fs::path&) {
    return false;
}

std::optional<FileFacts> FactsOf(const fs::path& path) {
    struct _stat64 status {};
    if (_wstat64(path.c_str(), &status) != 0) return std::nullopt;
    return FileFacts{status.st_size, status.st_mtime, (status.st_mode & _S_IFDIR) != 0};
}

bool Flush(const fs::path& path) {
    const int file = _wopen(path.c_str(), _O_RDWR | _O_BINARY | _O_NOINHERIT);
    if (file == kNoFile) return false;
    const bool flushed = _commit(file) == 0;
    const int error = errno;
    _close(file);
    errno = error;
    return flushed;
}

int OpenLocked(const fs::path& path) {
    return _wsopen(path.c_str(), _O_RDWR | _O_CREAT | _O_BINARY | _O_NOINHERIT, _SH_DENYRW,
                   _S_IREAD | _S_IWRITE);
}

bool MakePrivateDir(const fs::path& path) {
    // On Windows a folder inherits the permissions of the user's folder, so it is private already.
    return _wmkdir(path.c_str()) == 0;
}

UserFolders OwnUserFolders() {
    const wchar_t* settings = _wgetenv(L"APPDATA");
    const wchar_t* state = _wgetenv(L"LOCALAPPDATA");
    return {settings ? settings : L"", {}, state ? state : L""};
}

void PreferLargePages(void*, std::size_t) {}

std::tm LocalTime(std::time_t time) {
    std::tm local{};
    localtime_s(&local, &time);
    return local;
}

int AnsiCodePage() {
    return static_cast<int>(GetACP());
}

void PrepareStandardStreams() {
    for (std::FILE* stream : {stdin, stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
}

fs::path ExecutablePath() {
    std::array<wchar_t, 32768> buffer{};
    const DWORD length = GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
    return std::wstring(buffer.data(), length);
}

} // namespace korvane::system_calls
