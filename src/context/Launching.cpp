#include "context/Launching.h"

#include "common/path/CommandWords.h"
#include "common/path/DriveForms.h"
#include "common/path/PathStyle.h"
#include "common/text/FindEntry.h"
#include "context/App.h"
#include "context/StoredPaths.h"
#include "context/exchange/SystemDirs.h"
#include "platform/FileSystem.h"
#include "platform/Shell.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr TextView kProgramExtension = u".exe";

/// The folder of the companion tools.
Text InCompanionSet(const PathStyle& style, TextView name) {
    return style.JoinPath(u"C:\\TolmereSet", name);
}

/// On a system without drives, programs also have names without ".exe".
Text InProgramFolder(const FileSystem& files, TextView name) {
    const Text path = files.Style().JoinPath(files.ProgramDir(), name);
    if (files.Style().HasDrives() || !HasExtension(name, kProgramExtension) || files.FileExists(path))
        return path;
    return path.substr(0, path.size() - kProgramExtension.size());
}

/// On a system without drives, a path in Windows form only names a program. A file in the current directory
/// that happens to be called "G:\a.exe" isn't meant.
Text FindByName(const FileSystem& files, TextView windowsPath) {
    return InProgramFolder(files, windowsPath.substr(windowsPath.find_last_of(u"\\/") + 1));
}

/// The full path of the file that was found. A bare name would be looked for among the system's own programs
/// instead.
Text ThatFile(const FileSystem& files, const Text& program) {
    return files.Style().IsAbsolute(program) ? program : files.FullPath(program);
}

struct OfficeProgram {
    TextView name;
    Text Settings::*location;
};
constexpr std::array<OfficeProgram, 5> kOfficePrograms{{
    {u"WINWORD.EXE", &Settings::WordPath},
    {u"MSPUB.EXE", &Settings::PublisherPath},
    {u"MSACCESS.EXE", &Settings::AccessPath},
    {u"EXCEL.EXE", &Settings::ExcelPath},
    {u"POWERPNT.EXE", &Settings::PowerPointPath},
}};

// The newest comes first, and the last is taken without a test.
constexpr std::array<TextView, 4> kOfficeFolders{u"OFFICE16", u"OFFICE12", u"OFFICE11", u"Office"};

/// The location that the user set for the program; empty for none.
Text LocationSet(const Settings& settings, TextView name) {
    const auto* found = FindEntry(kOfficePrograms, name, &OfficeProgram::name);
    return found == nullptr ? Text() : settings.*found->location;
}

} // namespace

Text FindProgram(const FileSystem& files, TextView program) {
    const PathStyle style = files.Style();
    if (!style.HasDrives() && HasWindowsForm(program)) return FindByName(files, program);
    const Text mapped = MapDrivePath(files, program);
    if (mapped.empty()) return mapped;
    if (files.FileExists(mapped)) return ThatFile(files, mapped);
    const TextView name = style.NamePart(mapped);
    const Text inSet = InCompanionSet(style, name);
    return style.HasDrives() && files.FileExists(inSet) ? inSet : InProgramFolder(files, name);
}

TextView BareArgument(TextView argument) {
    if (argument.find(u'"') != TextView::npos) argument = Mid(argument.substr(0, argument.size() - 1), 2);
    return Trim(argument);
}

/// A start that fails isn't reported. Kept for compatibility: failed-start-is-silent.
int LaunchProgram(App& app, TextView program, TextView argument) {
    return app.Shell().Run(FindProgram(app.Files(), program), SplitCommandLine(BareArgument(argument)),
                           WindowState::Normal);
}

int StartProgram(App& app, TextView program, const std::vector<Text>& arguments) {
    return app.Shell().Run(ThatFile(app.Files(), Text(program)), arguments, WindowState::Normal);
}

Text FindOfficeProgram(const App& app, TextView name) {
    const FileSystem& files = app.Files();
    const Text set = LocationSet(app.Settings, name);
    if (!set.empty() && files.FileExists(set)) return set;
    // On a system without drives, a path of those folders would be a name in the current directory, which may
    // be anything.
    if (!files.Style().HasDrives()) return files.Style().JoinPath(files.ProgramDir(), name);
    Text path;
    for (const TextView folder : kOfficeFolders) {
        // The folder of programs ends in a backslash already. Kept for compatibility:
        // office-path-two-backslashes.
        path = app.Exchange<SystemDirs>().ProgramFilesDir + u"\\Microsoft Office\\" + Text(folder) + u"\\" +
               Text(name);
        if (files.FileExists(path)) break;
    }
    return path;
}

} // namespace korvane
