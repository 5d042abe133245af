#include "e2e/DeskTest.h"

namespace korvane::e2e {

std::string Table(const std::filesystem::path& path, const std::string& changedCell) {
    const std::vector<std::string> lines{";",
                                         "; Values for colour, font type, font size, cell height, cell width",
                                         ";",
                                         "!16777215",
                                         "!Calibri",
                                         "!12",
                                         "!372",
                                         ";",
                                         "; Column names",
                                         ";",
                                         "!Name",
                                         "!1920",
                                         "!Note",
                                         "!1920",
                                         ";",
                                         "; File data",
                                         ";",
                                         "@row_1",
                                         "?1000",
                                         "\xA7-1",
                                         "\xA7-1",
                                         "@col_1",
                                         "Anna",
                                         "@col_2",
                                         "first line",
                                         "second line",
                                         "@row_2",
                                         "?00B0",
                                         "\xA7"
                                         "65535",
                                         "\xA7"
                                         "0",
                                         "@col_1",
                                         "Bert",
                                         "@col_2",
                                         changedCell,
                                         ";",
                                         "; End of File: " + path.string(),
                                         ";"};
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

void DeskTest::Edit(const std::string& typed) {
    desk.Press({"ctrl+Home", "Down", "Right", "F2"});
    desk.Type(typed);
    desk.Press({"Return"});
}

void DeskTest::Set(int number, const std::string& value) {
    const std::string bytes = ReadBytes(desk.Path("Korvane.ini"));
    std::size_t start = 0;
    for (int line = 1; line < number; ++line)
        start = bytes.find("\r\n", start) + 2;
    const std::size_t end = bytes.find("\r\n", start);
    WriteBytes(desk.Path("Korvane.ini"), bytes.substr(0, start) + value + bytes.substr(end));
}

bool DeskTest::SavedAs(const std::filesystem::path& saved, const std::string& cell) {
    desk.Press({"ctrl+s"});
    return desk.Holds(saved, Table(saved, cell));
}

} // namespace korvane::e2e
