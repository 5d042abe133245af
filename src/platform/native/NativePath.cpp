#include "platform/native/NativePath.h"

namespace korvane {

std::filesystem::path ToNativePath(TextView path) {
    // The system would read the name only up to the null, and so open another file.
    if (path.find(u'\0') != TextView::npos) return {};
#ifdef _WIN32
    return Text(path);
#else
    return ToUtf8(path);
#endif
}

Text FromNativePath(const std::filesystem::path& path) {
#ifdef _WIN32
    return path.u16string();
#else
    return FromUtf8(path.native());
#endif
}

} // namespace korvane
