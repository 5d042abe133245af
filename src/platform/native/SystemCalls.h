#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>

/// The calls that each system has its own for. One source file for each system defines them; what fails says
/// so in `errno`.
namespace korvane::system_calls {

/// Who may do what with a file. A system that knows no owners of files has none.
struct FileRights {
    std::uint32_t mode = 0;
    std::uint32_t user = 0;
    std::uint32_t group = 0;
};

inline constexpr int kNoFile = -1;

/// An open file, or `kNoFile`.
int OpenToRead(const std::filesystem::path& path);
/// Empties the file or makes it: with `rights` as far as the system lets it be and never with wider ones,
/// without them as the system makes new files. What isn't a plain file, a device say, keeps its own.
int OpenToWrite(const std::filesystem::path& path, const std::optional<FileRights>& rights);
/// Both may take fewer bytes than asked for; -1 is a failure.
std::ptrdiff_t ReadSome(int file, char* buffer, std::size_t size);
std::ptrdiff_t WriteSome(int file, const char* bytes, std::size_t size);
bool Close(int file);
/// 0 for what has no size, such as a pipe.
std::size_t SizeOf(int file);

/// Whether the user may write to the file or folder. What nobody may write to isn't writable for the
/// administrator either, to whom the system would allow it.
bool IsWritable(const std::filesystem::path& path);
std::optional<FileRights> RightsOf(const std::filesystem::path& path);
/// What the owner may do of these rights and nobody else; without any, the rights of a new file that only its
/// owner may read and write.
std::optional<FileRights> OwnersAlone(const std::optional<FileRights>& rights);
std::optional<std::time_t> ModifiedTime(const std::filesystem::path& path);
/// Makes the last folder of the path, for the user alone.
bool MakePrivateDir(const std::filesystem::path& path);

inline constexpr std::size_t kLargePage = std::size_t{2} << 20;
/// Asks for memory in large pages, where the system has them, as far as whole ones fit into the block.
/// Filling a fresh block then takes half the time, of which the system's care for each page is the larger
/// part. The block begins at a multiple of `kLargePage`.
void PreferLargePages(void* block, std::size_t size);

std::tm LocalTime(std::time_t time);
/// The number of the code page that the system itself keeps texts in; 0 where it has none.
int AnsiCodePage();
/// Lets the standard streams carry bytes as they are, and a write to a pipe that nobody reads any more fail
/// instead of ending the program.
void PrepareStandardStreams();
/// Where the user's programs keep their settings, as the environment tells; both empty when it doesn't.
struct UserFolders {
    std::filesystem::path settings;
    std::filesystem::path home;
};
UserFolders OwnUserFolders();
/// The file of the running program; empty when the system doesn't tell.
std::filesystem::path ExecutablePath();

} // namespace korvane::system_calls
