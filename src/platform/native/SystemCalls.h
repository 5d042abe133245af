#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>

/// The calls that are different on each system. There is one source file for each system. A call that fails
/// sets `errno`.
namespace korvane::system_calls {

/// The owner, the group and the permissions of a file. They are missing on a system whose files have no
/// owners.
struct FileRights {
    std::uint32_t mode = 0;
    std::uint32_t user = 0;
    std::uint32_t group = 0;
};

inline constexpr int kNoFile = -1;

/// Returns an open file or `kNoFile`.
int OpenToRead(const std::filesystem::path& path);
/// Creates the file or empties it. With `rights` it gets these as far as the system allows, and never more
/// than these. Without them a new file gets the system's default. Something that isn't a plain file, such as
/// a device, keeps its own rights.
int OpenToWrite(const std::filesystem::path& path, const std::optional<FileRights>& rights);
/// Creates the file as `OpenToWrite` does, unless anything has its name already.
int CreateNew(const std::filesystem::path& path, const std::optional<FileRights>& rights);
/// Opens a plain file. Anything else is refused, and a pipe isn't waited for.
int OpenPlainToRead(const std::filesystem::path& path);
/// These two calls may handle fewer bytes than asked for. They return -1 when they fail.
std::ptrdiff_t ReadSome(int file, char* buffer, std::size_t size);
std::ptrdiff_t WriteSome(int file, const char* bytes, std::size_t size);
bool Close(int file);
/// The size of a file, or 0 for something without a size, such as a pipe.
std::size_t SizeOf(int file);

/// Whether the user may do everything, also what a sandbox is to prevent.
bool IsAdministrator();
/// Whether the user may write to the file or folder. A file that nobody may write to isn't writable for the
/// administrator either, although the system would allow it.
bool IsWritable(const std::filesystem::path& path);
/// Whether the user may start the file, on a system where that and not the name makes a program.
bool IsProgram(const std::filesystem::path& path);
std::optional<FileRights> RightsOf(const std::filesystem::path& path);
/// The given rights without those of the group and of others. Without `rights`, those of a new file that only
/// its owner may read and write.
std::optional<FileRights> OwnersAlone(const std::optional<FileRights>& rights);
/// Whether nobody but its owner may read or write the open file, as far as the system knows owners.
bool IsForOwnerAlone(int file);
/// Allows or forbids that the system writes the memory of this program to a file when it crashes, and that
/// the user's other programs look into it.
void AllowMemoryDump(bool allow);
/// Whether the file belongs to the user or to the administrator, or is missing.
bool IsTrusted(const std::filesystem::path& path);
/// Returns when the contents of the file are safe on the disk.
bool Flush(const std::filesystem::path& path);
/// Opens a file, which is made for its owner alone if it is missing, and locks it until it is closed. Returns
/// `kNoFile` if it is locked already, by this process too.
int OpenLocked(const std::filesystem::path& path);
/// Of what the path leads to, through links.
struct FileFacts {
    std::int64_t size = 0;
    std::time_t modified = 0;
    bool isFolder = false;
};
std::optional<FileFacts> FactsOf(const std::filesystem::path& path);
/// Makes the last folder of the path. Only the user may enter it.
bool MakePrivateDir(const std::filesystem::path& path);

inline constexpr std::size_t kLargePage = std::size_t{2} << 20;
/// Asks the system for large memory pages for all whole large pages of the block. Filling a new block then
/// takes half the time, because most of that time is spent on setting up small pages. The block must begin at
/// a multiple of `kLargePage`.
void PreferLargePages(void* block, std::size_t size);

std::tm LocalTime(std::time_t time);
/// The number of the code page in which the system itself keeps texts, or 0 when it has none.
int AnsiCodePage();
/// Makes the standard streams pass bytes unchanged. Writing to a pipe that nobody reads fails then and
/// doesn't end the program.
void PrepareStandardStreams();
/// The folders that the environment names: for the settings of the user's programs, the home folder, and for
/// what programs keep on this computer, and the data of programs. A folder is empty when it isn't named.
struct UserFolders {
    std::filesystem::path settings{};
    std::filesystem::path home{};
    std::filesystem::path state{};
    std::filesystem::path data{};
};
UserFolders OwnUserFolders();
/// The path of the running program, or an empty path when the system doesn't tell it.
std::filesystem::path ExecutablePath();

} // namespace korvane::system_calls
