#include "app/OwnFiles.h"

#include "platform/native/NativePath.h"
#include "platform/native/user/StateFolder.h"

namespace korvane {

NativeFileSystem OwnFiles() {
    const Surroundings surroundings = OwnSurroundings();
    return {FromNativePath(surroundings.executable.parent_path()),
            FromNativePath(FindStateFolder(surroundings))};
}

} // namespace korvane
