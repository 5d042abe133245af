#include "files/lists/ListFile.h"

#include "common/text/CodePage.h"
#include "common/text/Lines.h"
#include "context/App.h"
#include "context/StandardMessages.h"
#include "platform/FileSystem.h"

#include <string>

namespace korvane {

namespace {

std::string BytesOf(const std::vector<Text>& lines, const CodePage& page) {
    std::string bytes;
    for (const Text& line : lines)
        bytes += page.ToBytes(line) + "\r\n";
    return bytes;
}

bool CanBeList(std::string_view bytes) {
    return bytes.find('\0') == std::string_view::npos;
}

} // namespace

std::vector<Text> LinesOfList(std::string_view bytes, const CodePage& page) {
    std::vector<Text> lines;
    LineReader reader(bytes, LineEnds::CrLfOrCrOrLf);
    for (std::string_view line; reader.Next(line);)
        lines.push_back(page.ToText(line));
    return lines;
}

std::optional<std::vector<Text>> ReadListFile(App& app, TextView path, std::int64_t largest) {
    FileSystem& files = app.Files();
    if (files.Size(path).value_or(0) > largest) return std::nullopt;
    const auto bytes = files.ReadAll(path);
    if (!bytes || !CanBeList(bytes->View())) return std::nullopt;
    return LinesOfList(bytes->View(), app.Page());
}

bool WriteListFile(App& app, TextView path, const std::vector<Text>& lines) {
    if (app.Files().WriteWhole(path, BytesOf(lines, app.Page()))) return true;
    ShowCannotAccess(app, path);
    return false;
}

} // namespace korvane
