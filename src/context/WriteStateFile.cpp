#include "context/WriteStateFile.h"

#include "context/App.h"
#include "context/StandardMessages.h"
#include "platform/FileSystem.h"

namespace korvane {

void WriteStateFile(App& app, TextView path, std::string_view bytes) {
    FileSystem& files = app.Files();
    const bool written = files.IsTrusted(path) && files.WriteWhole(path, bytes, Readers::OwnerAlone);
    if (!written) ShowCannotAccess(app, path);
}

} // namespace korvane
