#include "platform/native/ReplaceBytes.h"

#include "platform/native/FileCopy.h"
#include "platform/native/SystemCalls.h"
#include "platform/native/SystemFile.h"

namespace korvane {

namespace {

namespace fs = std::filesystem;

/// The file to which links lead. It needn't be there.
fs::path TargetOf(const fs::path& path) {
    std::error_code error;
    fs::path target = fs::weakly_canonical(path, error);
    return error ? path : target;
}

/// A name beside the file that is free.
fs::path NameBeside(const fs::path& target) {
    std::error_code ignored;
    for (int number = 1;; ++number) {
        fs::path name = target.parent_path() / (".korvane-" + std::to_string(number) + ".part");
        if (!fs::exists(fs::symlink_status(name, ignored))) return name;
    }
}

std::error_code WriteAll(SystemFile& file, std::string_view bytes) {
    std::error_code error;
    file.Write(bytes, error);
    std::error_code closing;
    file.Close(closing);
    return error ? error : closing;
}

std::error_code GiveUp(const fs::path& unfinished, const std::error_code& error) {
    std::error_code ignored;
    fs::remove(unfinished, ignored);
    return error;
}

} // namespace

std::optional<std::error_code> ReplaceBytes(const fs::path& path, std::string_view bytes, Readers readers) {
    const fs::path target = TargetOf(path);
    std::error_code error;
    const fs::file_status status = fs::status(target, error);
    const bool isThere = fs::exists(status);
    if (isThere && !fs::is_regular_file(status)) return std::nullopt;
    if (isThere && !system_calls::IsWritable(target)) return LastSystemError();
    const fs::path unfinished = NameBeside(target);
    auto rights = isThere ? system_calls::RightsOf(target) : std::nullopt;
    if (readers != Readers::AsBefore) rights = system_calls::OwnersAlone(rights);
    SystemFile file = SystemFile::CreateNew(unfinished, rights, error);
    // Writing into the file itself empties it first, and on a full disk it would stay empty.
    const bool ownerAlone = readers == Readers::OwnerAloneOrNone;
    if (!file.IsOpen()) return ownerAlone || IsDiskFull(error) ? std::optional(error) : std::nullopt;
    if (ownerAlone && !system_calls::IsForOwnerAlone(file.Number()))
        return GiveUp(unfinished, std::make_error_code(std::errc::operation_not_permitted));
    error = WriteAll(file, bytes);
    if (!error && !system_calls::Flush(unfinished)) error = LastSystemError();
    if (!error) fs::rename(unfinished, target, error);
    return error ? GiveUp(unfinished, error) : error;
}

} // namespace korvane
