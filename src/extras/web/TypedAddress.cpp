#include "extras/web/TypedAddress.h"

#include "common/path/ResolveAddress.h"
#include "common/path/WebAddress.h"
#include "platform/FileSystem.h"

namespace korvane {

Text AddressOfTyped(const FileSystem& files, TextView typed) {
    const TextView address = Trim(typed);
    if (address.empty()) return {};
    return files.FileExists(address) ? AddressOfFile(files.FullPath(address)) : WithScheme(address);
}

} // namespace korvane
