#include "tbx/Files.h"

#include "platform/FileSystem.h"

#include <memory>

namespace korvane {

namespace {

SharedBytes Share(std::string bytes) {
    const auto owner = std::make_shared<const std::string>(std::move(bytes));
    return {std::shared_ptr<const char[]>(owner, owner->data()), owner->size()};
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

bool WriteFile(TextView path, std::string_view bytes, FileSystem& files) {
    const std::unique_ptr<FileWriter> writer = files.OpenRaw(path);
    return writer && writer->Write(bytes) && writer->Close();
}

} // namespace

std::optional<SharedBytes> ReadInput(const std::string& name, Environment& environment) {
    if (name == kStandardStream) return ReadStandardInput(environment);
    auto bytes = environment.files.ReadAll(FromUtf8(name));
    if (!bytes) ComplainOfFile("read", name, environment);
    return bytes;
}

bool WriteOutput(const std::string& name, std::string_view bytes, Environment& environment) {
    if (name == kStandardStream) {
        environment.out.Write(bytes);
        return true;
    }
    const bool written = WriteFile(FromUtf8(name), bytes, environment.files);
    if (!written) ComplainOfFile("write", name, environment);
    return written;
}

Text PathOfArgument(const std::string& name, Environment& environment) {
    const Text path = FromUtf8(name);
    return name == kStandardStream ? path : environment.files.FullPath(path);
}

std::string Quoted(std::string_view name) {
    return "\"" + std::string(name) + "\"";
}

} // namespace korvane
