// Loads documents that name files and addresses elsewhere, and reads in a trace of the system's calls that
// none of those was opened.

#include "document/package/Package.h"
#include "e2e/Process.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <sstream>

namespace korvane::e2e {
namespace {

namespace fs = std::filesystem;

constexpr char kHtml[] =
    "<html><head><base href='http://127.0.0.1:9/'><link rel=stylesheet href='http://127.0.0.1:9/a.css'>"
    "<meta http-equiv=refresh content='0;url=http://127.0.0.1:9/'><style>@import 'http://127.0.0.1:9/b.css';"
    "p{background:url(file:///etc/hostname)}</style><script src='http://127.0.0.1:9/a.js'></script></head>"
    "<body background='/etc/hostname'><p style=\"background:url('http://127.0.0.1:9/c.png')\">text"
    "<img src='http://127.0.0.1:9/a.png'><img src='file:///etc/hostname'><img src='/etc/hostname'>"
    "<img src='../secret.png'><img src='\\\\server\\share\\a.png'><iframe src='/etc/hostname'></iframe>"
    "<object data='/etc/hostname'></object><embed src='/etc/hostname'><svg><image "
    "href='/etc/hostname'/></svg>"
    "<video src='/etc/hostname'></video><a href='file:///etc/hostname'>link</a></p></body></html>";

constexpr char kRtf[] = "{\\rtf1\\ansi{\\*\\template /etc/hostname}text"
                        "{\\field{\\*\\fldinst INCLUDEPICTURE \"http://127.0.0.1:9/a.png\"}{\\fldrslt x}}"
                        "{\\field{\\*\\fldinst INCLUDETEXT \"/etc/hostname\"}{\\fldrslt x}}"
                        "{\\field{\\*\\fldinst DDEAUTO \"/bin/sh\" \"-c true\"}{\\fldrslt x}}"
                        "{\\object\\objlink\\objupdate{\\*\\objclass Package}{\\*\\objdata 0102}{\\result y}}"
                        "{\\*\\datasource /etc/hostname}{\\file{\\*\\fname /etc/hostname}}"
                        "{\\field{\\*\\fldinst HYPERLINK \"file:///etc/hostname\"}{\\fldrslt link}}\\par}";

constexpr char kTypes[] = "<Types xmlns='http://schemas.openxmlformats.org/package/2006/content-types'/>";
constexpr char kMainRelation[] =
    "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'><Relationship "
    "Id='r1' "
    "Type='http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument' "
    "Target='word/document.xml'/></Relationships>";

std::string Relations() {
    const std::string type = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
    std::string relations =
        "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>";
    int number = 0;
    for (const char* const kind : {"image", "attachedTemplate", "aFChunk", "oleObject", "subDocument"}) {
        for (const char* const target :
             {"http://127.0.0.1:9/a", "file:///etc/hostname", "../../../etc/hostname"})
            relations += "<Relationship Id='e" + std::to_string(++number) + "' Type='" + type + kind +
                         "' Target='" + target + "' TargetMode='External'/>";
    }
    return relations + "</Relationships>";
}

std::string Docx(const std::string& prologue) {
    doc::PackageWriter package;
    package.Add("[Content_Types].xml", kTypes);
    package.Add("_rels/.rels", kMainRelation);
    package.Add("word/_rels/document.xml.rels", Relations());
    package.Add(
        "word/document.xml",
        prologue +
            "<w:document xmlns:w='http://schemas.openxmlformats.org/wordprocessingml/2006/main' "
            "xmlns:r='http://schemas.openxmlformats.org/officeDocument/2006/relationships' "
            "xmlns:a='http://schemas.openxmlformats.org/drawingml/2006/main'><w:body><w:p><w:r><w:t>text"
            "</w:t></w:r><w:r><w:drawing><a:blip r:link='e1'/><a:blip r:embed='e2'/><a:blip r:embed='e3'/>"
            "</w:drawing></w:r></w:p><w:altChunk r:id='e8'/><w:subDoc r:id='e14'/></w:body></w:document>");
    return package.Write();
}

class TracedLoad : public testing::Test {
protected:
    void SetUp() override {
        if (!Output({"strace", "-o", "/dev/null", "true"}, environment))
            GTEST_SKIP() << "strace isn't installed, or the system lets nobody trace";
        fs::create_directory(folder / "papers");
        // The library for archives is opened with the first of them.
        WriteBytes(first, Docx(""));
        Put("begin.txt", "text");
        Put("page.html", kHtml);
        Put("letter.rtf", kRtf);
        Put("letter.docx", Docx(""));
        Put("entity.docx", Docx("<!DOCTYPE d [<!ENTITY % e SYSTEM 'file:///etc/hostname'>%e;]>"));
        WriteBytes(folder / "secret.png", "secret");
    }

    void Put(const std::string& name, const std::string& bytes) {
        files.push_back((folder / "papers" / name).string());
        WriteBytes(files.back(), bytes);
    }

    /// The calls after the first file was opened, a line each.
    std::vector<std::string> Calls() {
        const std::string log = (folder / "calls").string();
        std::vector<std::string> command{"strace",
                                         "-f",
                                         "-qq",
                                         "-e",
                                         "trace=%network,%process,open,openat,creat",
                                         "-o",
                                         log,
                                         KORVANE_DOCUMENT_LOAD,
                                         first.string()};
        command.insert(command.end(), files.begin(), files.end());
        if (!Output(command, environment)) return {};
        std::istringstream lines(ReadBytes(log));
        std::vector<std::string> calls;
        for (std::string line; std::getline(lines, line);) {
            if (!calls.empty() || line.find("begin.txt\", ") != std::string::npos) calls.push_back(line);
        }
        return calls;
    }

    static bool IsAny(const std::string& call, std::initializer_list<const char*> names) {
        for (const char* const name : names) {
            if (call.find(std::string(name) + "(") != std::string::npos) return true;
        }
        return false;
    }

    TempDir temporary;
    fs::path folder = temporary.Path();
    fs::path first = folder / "first.docx";
    std::vector<std::string> files;
    /// The check for leaks can't run while it is traced.
    Process::Environment environment{{"PATH", std::getenv("PATH")}, {"ASAN_OPTIONS", "detect_leaks=0"}};
};

TEST_F(TracedLoad, NothingThatADocumentNamesIsOpened) {
    const std::vector<std::string> calls = Calls();
    std::size_t opened = 0;
    for (const std::string& call : calls) {
        EXPECT_FALSE(IsAny(call, {"connect", "socket", "sendto", "execve", "fork", "vfork"})) << call;
        if (!IsAny(call, {"open", "openat", "creat"})) continue;
        EXPECT_NE(call.find((folder / "papers/").string()), std::string::npos) << call;
        ++opened;
    }
    EXPECT_GE(opened, files.size());
    for (const std::string& file : files) {
        const auto opens = [&file](const std::string& call) { return call.find(file) != std::string::npos; };
        EXPECT_TRUE(std::ranges::any_of(calls, opens)) << file;
    }
}

} // namespace
} // namespace korvane::e2e
