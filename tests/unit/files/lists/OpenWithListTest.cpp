#include "files/lists/OpenWithList.h"

#include <gmock/gmock.h>

namespace korvane {

std::ostream& operator<<(std::ostream& out, const ListedProgram& program) {
    return out << ToUtf8(program.folder) << '|' << ToUtf8(program.name);
}

namespace {

using testing::ElementsAre;
using testing::Eq;
using testing::IsEmpty;

const ListedProgram kA{u"a.exe", u"C:\\A\\"};
const ListedProgram kB{u"b.exe", u"C:\\B\\"};

TEST(OpenWithList, TwoLinesMakeARow) {
    EXPECT_THAT(ProgramsOfLines({u"a.exe", u"C:\\A\\", u"b.exe", u"C:\\B\\"}), ElementsAre(kA, kB));
    EXPECT_THAT(ProgramsOfLines({}), IsEmpty());
}

TEST(OpenWithList, EmptyLinesAndCommentsDoNotDisturbThePairs) {
    EXPECT_THAT(ProgramsOfLines({u";x", u"a.exe", u"", u";y", u"C:\\A\\", u"", u"b.exe", u"C:\\B\\", u";"}),
                ElementsAre(kA, kB));
}

TEST(OpenWithList, ALastOddLineIsAProgramWithoutAFolder) {
    EXPECT_THAT(ProgramsOfLines({u"a.exe", u"C:\\A\\", u"b.exe"}),
                ElementsAre(kA, ListedProgram{u"b.exe", u""}));
}

TEST(OpenWithList, DeletedRowsAreNotWritten) {
    EXPECT_THAT(LinesOfPrograms({kA, {u"---", u"---"}, kB}),
                ElementsAre(u"a.exe", u"C:\\A\\", u"b.exe", u"C:\\B\\"));
}

TEST(OpenWithList, ACommandIsKnownByItsText) {
    EXPECT_TRUE(IsCommand({u"rundll32.exe", u"shimgvw.dll,ImageView"}));
    EXPECT_TRUE(IsCommand({u"C:\\Windows\\rundll32.exe /x", u""}));
    EXPECT_FALSE(IsCommand({u"RUNDLL32.EXE", u""}));
    EXPECT_FALSE(IsCommand(kA));
}

TEST(OpenWithList, APathIsPartedBehindItsLastSeparator) {
    EXPECT_EQ(ProgramOfPath(PathStyle::Windows, u"C:\\A\\a.exe"), kA);
    EXPECT_EQ(ProgramOfPath(PathStyle::Posix, u"/usr/bin/a"), (ListedProgram{u"a", u"/usr/bin/"}));
    EXPECT_EQ(ProgramOfPath(PathStyle::Posix, u"a"), (ListedProgram{u"a", u""}));
}

TEST(OpenWithList, TheFolderStandsInFrontOfTheNameAsItIsStored) {
    EXPECT_EQ(PathOf(PathStyle::Windows, kA), u"C:\\A\\a.exe");
    EXPECT_EQ(PathOf(PathStyle::Windows, {u"a.exe", u"C:\\A"}), u"C:\\Aa.exe");
    EXPECT_EQ(PathOf(PathStyle::Posix, {u"a", u"/usr/bin/"}), u"/usr/bin/a");
    EXPECT_EQ(PathOf(PathStyle::Posix, {u"a", u"/usr/bin"}), u"/usr/bin/a");
    EXPECT_EQ(PathOf(PathStyle::Posix, {u"a", u""}), u"a");
}

TEST(OpenWithList, TogglesBetweenTheTwoFoldersOfPrograms) {
    const Text plain = u"C:\\Program Files\\A Files\\";
    const Text x86 = u"C:\\Program Files (x86)\\A Files\\";
    EXPECT_EQ(ToggledFolder(plain), x86);
    EXPECT_EQ(ToggledFolder(x86), plain);
    EXPECT_EQ(ToggledFolder(u"C:\\Tools\\"), u"C:\\Tools\\");
    EXPECT_EQ(ToggledFolder(u"C:\\files\\"), u"C:\\files\\");
    EXPECT_EQ(ToggledFolder(u""), u"");
}

/// The name of the row that is proposed for a file with this extension, when each of `names` is a row.
Text Proposed(const Text& file, const std::vector<Text>& names) {
    std::vector<ListedProgram> programs;
    for (const Text& name : names)
        programs.push_back({name, u"C:\\Tools\\"});
    const auto place = ProposedProgram(file, programs);
    return place ? names[*place] : Text(u"(none)");
}

TEST(ProposedProgram, GoesByTheExtension) {
    struct Case {
        Text extension;
        Text program;
    };
    const std::vector<Case> cases{
        {u"doc", u"WINWORD.EXE"},   {u"docx", u"WINWORD.EXE"}, {u"ppt", u"POWERPNT.EXE"},
        {u"pptx", u"POWERPNT.EXE"}, {u"xls", u"EXCEL.EXE"},    {u"xlsx", u"EXCEL.EXE"},
        {u"rtf", u"Zoltry.exe"},    {u"htm", u"Gastrel.exe"},  {u"html", u"Gastrel.exe"},
        {u"pdf", u"Brannock.exe"},  {u"jpg", u"Fenlow.exe"},   {u"jpeg", u"Fenlow.exe"},
        {u"gif", u"Fenlow.exe"},    {u"png", u"Fenlow.exe"},   {u"bmp", u"Fenlow.exe"},
        {u"ico", u"Pellwick.exe"},  {u"mov", u"GOM.EXE"},      {u"flv", u"GOM.EXE"},
        {u"mp4", u"GOM.EXE"},       {u"zip", u"Jessup.exe"},   {u"dbf", u"Marfen.exe"},
        {u"mdb", u"Harlun.exe"},    {u"ibx", u"Corbrin.exe"},  {u"txt", u"Dunmark.exe"},
    };
    std::vector<Text> all;
    for (const Case& each : cases)
        all.push_back(each.program);
    for (const Case& each : cases)
        EXPECT_EQ(Proposed(u"C:\\Data\\a." + each.extension, all), each.program) << ToUtf8(each.extension);
}

TEST(ProposedProgram, CapitalsInTheExtensionCountAsSmallLetters) {
    EXPECT_EQ(Proposed(u"C:\\A.PDF", {u"Brannock.exe"}), u"Brannock.exe");
}

TEST(ProposedProgram, SomeRowsAreComparedInCapitalsOthersAsTheyAre) {
    EXPECT_EQ(Proposed(u"C:\\a.doc", {u"WinWord.exe"}), u"WinWord.exe");
    EXPECT_EQ(Proposed(u"C:\\a.mp4", {u"gom.exe"}), u"gom.exe");
    EXPECT_EQ(Proposed(u"C:\\a.ico", {u"PELLWICK.EXE"}), u"PELLWICK.EXE");
    EXPECT_EQ(Proposed(u"C:\\a.pdf", {u"brannock.exe"}), u"(none)");
    EXPECT_EQ(Proposed(u"C:\\a.txt", {u"DUNMARK.EXE"}), u"(none)");
}

// Kept for compatibility: proposals-never-match.
TEST(ProposedProgram, TwoComparisonsCanNeverMatch) {
    EXPECT_EQ(Proposed(u"C:\\a.odp", {u"soffice.exe", u"SOFFICE.EXE", u"Dunmark.exe"}), u"(none)");
    EXPECT_EQ(Proposed(u"C:\\a.wav", {u"Nimbrel.exe", u"nimbrel.exe", u"Dunmark.exe"}), u"(none)");
    EXPECT_EQ(Proposed(u"C:\\a.mp3", {u"Nimbrel.exe", u"nimbrel.exe", u"Dunmark.exe"}), u"(none)");
}

TEST(ProposedProgram, AFileWithoutAPointIsLikeAnyOther) {
    EXPECT_EQ(Proposed(u"C:\\Data\\readme", {u"a.exe", u"Dunmark.exe"}), u"Dunmark.exe");
    EXPECT_EQ(Proposed(u"C:\\My.doc\\readme", {u"WINWORD.EXE", u"Dunmark.exe"}), u"Dunmark.exe");
    EXPECT_EQ(Proposed(u"doc", {u"WINWORD.EXE", u"Dunmark.exe"}), u"Dunmark.exe");
    EXPECT_EQ(Proposed(u"", {u"Dunmark.exe"}), u"Dunmark.exe");
}

TEST(ProposedProgram, TheFirstOfSeveralRowsIsTaken) {
    const std::vector<ListedProgram> programs{kA, {u"Jessup.exe", u"C:\\1\\"}, {u"Jessup.exe", u"C:\\2\\"}};
    EXPECT_THAT(ProposedProgram(u"C:\\a.zip", programs), Eq(1U));
}

} // namespace
} // namespace korvane
