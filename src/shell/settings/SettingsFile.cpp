#include "shell/settings/SettingsFile.h"

#include "common/number/Number.h"
#include "common/settings/Settings.h"
#include "common/text/CodePage.h"
#include "common/text/Lines.h"
#include "context/App.h"
#include "context/StandardMessages.h"
#include "context/WriteStateFile.h"
#include "context/exchange/StateFiles.h"
#include "context/ports/SecretHolder.h"
#include "platform/FileSystem.h"

#include <cmath>
#include <string>
#include <variant>

namespace korvane {

namespace {

constexpr TextView kSettingsName = u"Korvane.ini";

void StoreLine(const SettingLine& setting, std::string_view bytes, const CodePage& page, Text& field) {
    if (setting.kind == SettingKind::Plain) {
        field = page.ToText(bytes);
    } else if (const double number = Val(bytes); std::isfinite(number)) {
        field = NumberText(number);
    }
}

template <std::signed_integral Int>
void StoreLine(const SettingLine&, std::string_view bytes, const CodePage&, Int& field) {
    ReadNumber(bytes, field);
}

std::string LineBytes(const Text& field, const CodePage& page) {
    return page.ToBytes(field);
}

template <std::signed_integral Int>
std::string LineBytes(Int field, const CodePage&) {
    return std::to_string(field);
}

std::string AllLines(const Settings& settings, const CodePage& page) {
    std::string bytes;
    for (const SettingLine& line : SettingsTable()) {
        std::visit([&](auto member) { bytes += LineBytes(settings.*member, page); }, line.written);
        bytes += "\r\n";
    }
    return bytes;
}

void TakeCurrentDir(App& app) {
    app.Settings.CurDirAtSave = app.Files().CurrentDir();
    app.Settings.CurDrive = Text(Left(app.Settings.CurDirAtSave, 1));
}

} // namespace

Text OwnSettingsFile(const FileSystem& files) {
    return files.Style().JoinPath(files.StateDir(), kSettingsName);
}

Text SettingsToRead(const FileSystem& files, TextView own) {
    const Text shipped = files.Style().JoinPath(files.ProgramDir(), kSettingsName);
    return !files.FileExists(own) && files.FileExists(shipped) ? shipped : Text(own);
}

namespace {

void ReadLines(App& app, std::string_view bytes) {
    // Only CR LF ends a line, because the line that holds the word delimiters has a lone CR at its end.
    LineReader lines(bytes, LineEnds::CrLf);
    std::string_view line;
    for (const SettingLine& setting : SettingsTable()) {
        if (!lines.Next(line)) return;
        std::visit([&](auto member) { StoreLine(setting, line, app.Page(), app.Settings.*member); },
                   setting.read);
    }
}

} // namespace

void ReadSettings(App& app) {
    const Text& own = app.Exchange<StateFiles>().IniFilePath;
    const Text path = SettingsToRead(app.Files(), own);
    const bool planted = path == own && !app.Files().IsTrusted(own);
    if (planted || !app.Files().FileExists(path)) {
        ShowCannotLoad(app, path);
        return;
    }
    const auto bytes = app.Files().ReadAll(path);
    if (bytes) ReadLines(app, bytes->View());
    HoldPassword(app);
}

void WriteSettings(App& app) {
    TakeCurrentDir(app);
    const Text& path = app.Exchange<StateFiles>().IniFilePath;
    const std::string all = AllLines(app.Settings, app.Page());
    if (app.Settings.ReturnPassword.empty()) return WriteStateFile(app, path, all);
    Settings open = app.Settings;
    open.ReturnPassword.clear();
    WriteSecretFile(app, path, all, AllLines(open, app.Page()));
}

void HoldPassword(const App& app) {
    auto* holder = app.Port<SecretHolder>();
    if (holder != nullptr && !app.Settings.ReturnPassword.empty()) holder->Hold();
}

} // namespace korvane
