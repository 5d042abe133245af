#include "context/WriteStateFile.h"

#include "context/App.h"
#include "context/StandardMessages.h"
#include "platform/FileSystem.h"

namespace korvane {

namespace {

constexpr int kAttempts = 2;

} // namespace

void WriteStateFile(App& app, TextView path, std::string_view bytes) {
    FileSystem& files = app.Files();
    const bool written = files.IsTrusted(path) && files.WriteWhole(path, bytes, Readers::OwnerAlone);
    if (!written) ShowCannotAccess(app, path);
}

void WriteSecretFile(App& app, TextView path, std::string_view bytes, std::string_view withoutSecret) {
    FileSystem& files = app.Files();
    // A failure that passes must not cost the secret.
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (files.IsTrusted(path) && files.WriteWhole(path, bytes, Readers::OwnerAloneOrNone)) return;
    }
    WriteStateFile(app, path, withoutSecret);
}

} // namespace korvane
