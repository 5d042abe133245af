#include "platform/native/NativeFileSystem.h"
#include "platform/native/NativePath.h"
#include "platform/native/SystemCalls.h"
#include "platform/native/user/StateFolder.h"
#include "platform/native/user/UserCodePage.h"
#include "tbx/Tbx.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <optional>
#include <string>
#include <vector>

namespace korvane {
namespace {

/// What the standard input is read from has this name too, on systems that name it.
constexpr TextView kInputFile = u"/dev/stdin";

std::optional<std::string> ReadAllOf(std::FILE* stream) {
    std::string bytes;
    std::array<char, 64 * 1024> piece;
    while (const std::size_t count = std::fread(piece.data(), 1, piece.size(), stream))
        bytes.append(piece.data(), count);
    if (std::ferror(stream) != 0) return std::nullopt;
    return bytes;
}

/// Writes what is left. When the reader has gone away, it has seen all that it wanted; any other failure is
/// reported.
ExitStatus Finish(ExitStatus status, StreamOutput& out, Environment& environment) {
    if (out.Flush() || out.Error() == EPIPE) return status;
    return Fail(environment,
                std::string("cannot write to the standard output: ") + std::strerror(out.Error()));
}

ExitStatus Run(const std::vector<std::string>& arguments) {
    StreamOutput out(stdout);
    StreamOutput err(stderr);
    NativeFileSystem files({}, {}, NativeFileSystem::SpecialFiles::Written);
    Environment environment{files,
                            out,
                            err,
                            [] { return ReadAllOf(stdin); },
                            UserCodePage(),
                            FromNativePath(FindKeptFolder(OwnSurroundings())),
                            [&files](TextView path) { return files.IsSame(kInputFile, path); }};
    ExitStatus status = ExitStatus::Error;
    try {
        status = Finish(RunTbx(arguments, environment), out, environment);
    } catch (const std::exception& failure) {
        Complain(environment, failure.what());
    }
    err.Flush();
    return status;
}

} // namespace
} // namespace korvane

int main(int argc, char** argv) {
    korvane::system_calls::PrepareStandardStreams();
    return static_cast<int>(korvane::Run({argv + (argc > 0 ? 1 : 0), argv + argc}));
}
