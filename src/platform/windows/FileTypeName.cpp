#include "platform/windows/FileTypeName.h"

#include "platform/windows/WindowsText.h"

#include <windows.h>
#include <shellapi.h>

#include <string>

namespace korvane {

Text FileTypeName(TextView extension) {
    const std::wstring name = ToWide(Text(u"a.").append(extension));
    SHFILEINFOW info{};
    // With the attributes given, the file needn't be there.
    const auto found = SHGetFileInfoW(name.c_str(), FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                                      SHGFI_TYPENAME | SHGFI_USEFILEATTRIBUTES);
    return found == 0 ? Text() : FromWide(info.szTypeName);
}

} // namespace korvane
