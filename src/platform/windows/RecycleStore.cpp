#include "platform/windows/RecycleStore.h"

#include "platform/windows/WindowsText.h"

#include <windows.h>
#include <shellapi.h>

#include <filesystem>

namespace korvane {

namespace {

FILEOP_FLAGS FlagsFor(RecycleTalk talk) {
    const int quiet = talk == RecycleTalk::Silent ? FOF_NOCONFIRMATION | FOF_SILENT : 0;
    return static_cast<FILEOP_FLAGS>(FOF_ALLOWUNDO | quiet);
}

/// A list of one path, which ends with two nulls. The path is absolute, because Windows deletes a file for
/// good when its path is relative.
std::wstring PathList(TextView path) {
    std::error_code error;
    std::wstring list = std::filesystem::absolute(ToWide(path), error).make_preferred().wstring();
    list += L'\0';
    return list;
}

} // namespace

bool MoveToRecycleStore(TextView path, RecycleTalk talk) {
    // The text after a null would be a second path, and a pattern would match other files.
    constexpr TextView kInNoPath(u"\0*?", 3);
    if (path.empty() || path.find_first_of(kInNoPath) != TextView::npos) return false;
    const std::wstring list = PathList(path);
    SHFILEOPSTRUCTW operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = list.c_str();
    operation.fFlags = FlagsFor(talk);
    return SHFileOperationW(&operation) == 0 && !operation.fAnyOperationsAborted;
}

} // namespace korvane
