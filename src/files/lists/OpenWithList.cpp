#include "files/lists/OpenWithList.h"

#include "common/text/CaseFold.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr TextView kX86 = u" (x86)";

bool Counts(const Text& line) {
    return !line.empty() && !line.starts_with(u';');
}

using Form = Text (*)(TextView name);

Text AsStored(TextView name) {
    return Text(name);
}
Text InCapitals(TextView name) {
    return ToUpper(name);
}
Text InSmallLetters(TextView name) {
    return ToLower(name);
}

struct Proposal {
    TextView extension;
    TextView program;
    /// In which form the name of a row is compared with the program.
    Form form;
};

// The rows of "odp", "wav" and "mp3" compare names with what they can't be in that form, so that nothing is
// proposed. Kept for compatibility: proposals-never-match.
constexpr auto kProposals = std::to_array<Proposal>({
    {u"doc", u"WINWORD.EXE", InCapitals},      {u"docx", u"WINWORD.EXE", InCapitals},
    {u"ppt", u"POWERPNT.EXE", InCapitals},     {u"pptx", u"POWERPNT.EXE", InCapitals},
    {u"xls", u"EXCEL.EXE", InCapitals},        {u"xlsx", u"EXCEL.EXE", InCapitals},
    {u"odp", u"soffice.exe", InCapitals},      {u"rtf", u"Zoltry.exe", AsStored},
    {u"htm", u"Gastrel.exe", AsStored},        {u"html", u"Gastrel.exe", AsStored},
    {u"pdf", u"Brannock.exe", AsStored},       {u"jpg", u"Fenlow.exe", AsStored},
    {u"jpeg", u"Fenlow.exe", AsStored},        {u"gif", u"Fenlow.exe", AsStored},
    {u"png", u"Fenlow.exe", AsStored},         {u"bmp", u"Fenlow.exe", AsStored},
    {u"ico", u"pellwick.exe", InSmallLetters}, {u"wav", u"Nimbrel.exe", InSmallLetters},
    {u"mp3", u"Nimbrel.exe", InSmallLetters},  {u"mov", u"GOM.EXE", InCapitals},
    {u"flv", u"GOM.EXE", InCapitals},          {u"mp4", u"GOM.EXE", InCapitals},
    {u"zip", u"Jessup.exe", AsStored},         {u"dbf", u"Marfen.exe", AsStored},
    {u"mdb", u"Harlun.exe", AsStored},         {u"ibx", u"Corbrin.exe", AsStored},
});
constexpr Proposal kAnyOther{u"", u"Dunmark.exe", AsStored};

/// What follows the last point, in small letters.
Text ExtensionOf(TextView file) {
    const std::size_t point = InStrRev(file, u".");
    return point == 0 ? Text() : ToLower(Mid(file, point + 1));
}

const Proposal& ProposalFor(TextView file) {
    const auto* found = std::ranges::find(kProposals, TextView(ExtensionOf(file)), &Proposal::extension);
    return found == kProposals.end() ? kAnyOther : *found;
}

} // namespace

std::vector<ListedProgram> ProgramsOfLines(const std::vector<Text>& lines) {
    std::vector<ListedProgram> programs;
    bool folderNext = false;
    for (const Text& line : lines) {
        if (!Counts(line)) continue;
        if (folderNext) {
            programs.back().folder = line;
        } else {
            programs.push_back({line, {}});
        }
        folderNext = !folderNext;
    }
    return programs;
}

std::vector<Text> LinesOfPrograms(const std::vector<ListedProgram>& programs) {
    std::vector<Text> lines;
    for (const ListedProgram& program : programs) {
        if (program.name == kDeletedRow) continue;
        lines.push_back(program.name);
        lines.push_back(program.folder);
    }
    return lines;
}

bool IsCommand(const ListedProgram& program) {
    return InStr(program.name, u"rundll32.exe") > 0;
}

ListedProgram ProgramOfPath(const PathStyle& style, TextView path) {
    const TextView name = style.NamePart(path);
    return {Text(name), Text(Left(path, path.size() - name.size()))};
}

Text PathOf(const PathStyle& style, const ListedProgram& program) {
    return style.HasDrives() ? program.folder + program.name : style.JoinPath(program.folder, program.name);
}

Text ToggledFolder(TextView folder) {
    constexpr TextView kFiles = u"Files";
    Text toggled(folder);
    const std::size_t x86 = toggled.find(kX86);
    if (x86 != Text::npos) return toggled.erase(x86, kX86.size());
    const std::size_t files = toggled.find(kFiles);
    return files == Text::npos ? toggled : toggled.insert(files + kFiles.size(), kX86);
}

std::optional<std::size_t> ProposedProgram(TextView file, const std::vector<ListedProgram>& programs) {
    const Proposal& proposal = ProposalFor(file);
    const auto found = std::ranges::find_if(programs, [&proposal](const ListedProgram& program) {
        return proposal.form(program.name) == proposal.program;
    });
    if (found == programs.end()) return std::nullopt;
    return static_cast<std::size_t>(found - programs.begin());
}

} // namespace korvane
