#include "tbx/base/Files.h"

#include "platform/FileSystem.h"
#include "platform/native/NativePath.h"

#include <filesystem>
#include <memory>

namespace korvane {

namespace {

SharedBytes Share(std::string bytes) {
    const auto owner = std::make_shared<const std::string>(std::move(bytes));
    return {std::shared_ptr<const char[]>(owner, owner->data()), owner->size()};
}

/// The name as the system gave it to the program. Bytes in it that are no UTF-8 come back to the system as
/// they were.
Text NameOf(const std::string& argument) {
    return FromNativePath(std::filesystem::path(std::u8string(argument.begin(), argument.end())));
}

void ComplainOfFile(std::string_view step, const std::string& name, Environment& environment) {
    const std::string reason = ToUtf8(environment.files.LastErrorText());
    Complain(environment,
             "cannot " + std::string(step) + " " + Quoted(name) + (reason.empty() ? "" : ": " + reason));
}

std::optional<SharedBytes> ReadStandardInput(Environment& environment) {
    auto bytes = environment.readInput();
    if (bytes) return Share(*std::move(bytes));
    Complain(environment, "cannot read the standard input");
    return std::nullopt;
}

std::optional<SharedBytes> ReadNamed(TextView path, const std::string& name, Environment& environment) {
    auto bytes = environment.files.ReadAll(path);
    if (bytes) return bytes;
    // A pipe or a terminal can't be read by its name, but the standard input can.
    if (environment.isInput && environment.isInput(path)) return ReadStandardInput(environment);
    ComplainOfFile("read", name, environment);
    return std::nullopt;
}

} // namespace

std::optional<SharedBytes> ReadInput(const std::string& name, Environment& environment) {
    if (name == kStandardStream) return ReadStandardInput(environment);
    return ReadNamed(NameOf(name), name, environment);
}

std::optional<SharedBytes> ReadFileAt(TextView path, Environment& environment) {
    return ReadNamed(path, ToUtf8(path), environment);
}

bool WriteOutput(const std::string& name, std::string_view bytes, Environment& environment) {
    if (name == kStandardStream) {
        environment.out.Write(bytes);
        return true;
    }
    const bool written = environment.files.WriteWhole(NameOf(name), bytes);
    if (!written) ComplainOfFile("write", name, environment);
    return written;
}

Text PathOfArgument(const std::string& name, Environment& environment) {
    const Text path = NameOf(name);
    return name == kStandardStream ? path : environment.files.FullPath(path);
}

bool LeadToOneFile(const std::string& in, const std::string& out, Environment& environment) {
    if (out == kStandardStream) return false;
    const Text path = PathOfArgument(out, environment);
    if (in == kStandardStream) return environment.isInput && environment.isInput(path);
    const Text source = PathOfArgument(in, environment);
    return source == path || environment.files.IsSame(source, path);
}

ExitStatus LeaveAsItWas(const std::string& name, Environment& environment) {
    return Fail(environment, Quoted(name) + " is left as it was");
}

std::string Quoted(std::string_view name) {
    return "\"" + std::string(name) + "\"";
}

} // namespace korvane
