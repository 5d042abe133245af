#include "platform/native/process/NativeDocumentConverter.h"

#include "common/text/Text.h"
#include "platform/native/ReadFile.h"
#include "platform/native/SystemCalls.h"
#include "platform/native/process/ChildProcess.h"

#include <fstream>
#include <random>
#include <span>
#include <system_error>
#include <vector>

namespace korvane {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostBytes = std::size_t{64} << 20;

/// A folder for one run of another program, which only the user can enter. It goes with all that is in it.
class ScratchFolder {
public:
    ScratchFolder() {
        constexpr int kTries = 100;
        std::error_code error;
        const fs::path folder = fs::temp_directory_path(error);
        std::random_device random;
        for (int left = error ? 0 : kTries; left > 0 && path_.empty(); --left) {
            const fs::path name = folder / ("korvane-" + std::to_string(random()));
            if (system_calls::MakePrivateDir(name)) path_ = name;
        }
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::error_code ignored;
        if (!path_.empty()) fs::remove_all(path_, ignored);
    }

    /// Empty if there is none.
    const fs::path& Path() const { return path_; }

private:
    fs::path path_;
};

bool Write(const fs::path& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(file.flush());
}

/// A path as an argument.
std::string Utf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

bool IsPlainInUrl(char character) {
    constexpr std::string_view kPlain = "/-_.:0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    return kPlain.find(character) != std::string_view::npos;
}

std::string UrlOf(const fs::path& path) {
    const std::u8string text = path.generic_u8string();
    std::string url = text.starts_with(u8'/') ? "file://" : "file:///";
    for (const char8_t unit : text) {
        const char character = static_cast<char>(unit);
        constexpr char kHex[] = "0123456789ABCDEF";
        const auto code = static_cast<unsigned char>(character);
        if (IsPlainInUrl(character))
            url += character;
        else
            url.append({'%', kHex[code >> 4], kHex[code & 15]});
    }
    return url;
}

/// The settings of a LibreOffice that fetches nothing that a document names, and runs no macros.
constexpr std::string_view kOfficeSettings =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry">
<item oor:path="/org.openoffice.Office.Common/Security/Scripting"><prop oor:name="BlockUntrustedRefererLinks" oor:op="fuse"><value>true</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Security/Scripting"><prop oor:name="DisableActiveContent" oor:op="fuse"><value>true</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Security/Scripting"><prop oor:name="MacroSecurityLevel" oor:op="fuse"><value>3</value></prop></item>
<item oor:path="/org.openoffice.Office.Writer/Content/Update"><prop oor:name="Link" oor:op="fuse"><value>2</value></prop></item>
</oor:items>
)";

bool PrepareOffice(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder / "profile" / "user", error);
    return !error && Write(folder / "profile" / "user" / "registrymodifications.xcu", kOfficeSettings);
}

std::vector<std::string> Office(const fs::path& folder, const char* format) {
    return {"-env:UserInstallation=" + UrlOf(folder / "profile"),
            "--headless",
            "--norestore",
            "--nologo",
            "--nodefault",
            "--nolockcheck",
            "--convert-to",
            format,
            "--outdir",
            Utf8(folder / "out"),
            Utf8(folder / "in")};
}
std::vector<std::string> OfficeToRtf(const fs::path& folder) {
    return Office(folder, "rtf");
}
std::vector<std::string> OfficeToDoc(const fs::path& folder) {
    return Office(folder, "doc:MS Word 97");
}
std::vector<std::string> AntiwordToText(const fs::path& folder) {
    return {"-t", "-w", "0", "-m", "UTF-8.txt", Utf8(folder / "in")};
}
std::vector<std::string> PdfToXml(const fs::path& folder) {
    return {
        "-xml", "-i", "-q", "-nodrm", "-enc", "UTF-8", Utf8(folder / "in"), Utf8(folder / "out" / "in.xml")};
}

std::string Same(std::string_view bytes) {
    return std::string(bytes);
}

/// The lines as paragraphs.
std::string RtfOfLines(std::string_view utf8) {
    std::string rtf = "{\\rtf1\\ansi\\uc0 ";
    for (const char16_t character : FromUtf8(utf8)) {
        if (character == u'\n')
            rtf += "\\par\n";
        else if (character >= u' ')
            rtf += "\\u" + std::to_string(static_cast<std::int16_t>(character)) + " ";
    }
    return rtf + "}";
}

/// How a program does a conversion. The file that it gets is "in" in its folder, and what it makes is in
/// "out".
struct Helper {
    Conversion conversion;
    const char* program;
    /// As people know it.
    const char* name;
    bool (*prepare)(const fs::path& folder);
    std::vector<std::string> (*arguments)(const fs::path& folder);
    const char* made;
    /// Whether the program prints what it makes.
    bool prints;
    /// What is made begins with this.
    std::string_view begin;
    std::string (*finish)(std::string_view bytes);
};

bool PrepareNothing(const fs::path&) {
    return true;
}

constexpr std::string_view kOldWord("\xD0\xCF\x11\xE0", 4);

/// The first one of a conversion that is installed does it.
constexpr Helper kHelpers[] = {
    {Conversion::DocToRtf, "soffice", "LibreOffice", PrepareOffice, OfficeToRtf, "in.rtf", false, "{\\rtf",
     Same},
    {Conversion::DocToRtf, "antiword", "antiword", PrepareNothing, AntiwordToText, "in.txt", true, "",
     RtfOfLines},
    {Conversion::RtfToDoc, "soffice", "LibreOffice", PrepareOffice, OfficeToDoc, "in.doc", false, kOldWord,
     Same},
    {Conversion::PdfToXml, "pdftohtml", "pdftohtml (poppler-utils)", PrepareNothing, PdfToXml, "in.xml",
     false, "<?xml", Same},
};

/// What the program made, if it is what was asked for: the exit status alone doesn't tell.
std::optional<std::string> Made(const Helper& helper, const fs::path& file) {
    std::error_code error;
    if (!fs::is_regular_file(fs::symlink_status(file, error)) || fs::file_size(file, error) > kMostBytes)
        return std::nullopt;
    const auto bytes = ReadFile(file, error);
    if (!bytes || !bytes->View().starts_with(helper.begin)) return std::nullopt;
    return helper.finish(bytes->View());
}

std::optional<std::string> Run(const Helper& helper, const fs::path& program, std::string_view bytes,
                               const std::function<bool()>& goOn) {
    const ScratchFolder scratch;
    const fs::path& folder = scratch.Path();
    std::error_code error;
    if (folder.empty() || !fs::create_directory(folder / "out", error)) return std::nullopt;
    if (!Write(folder / "in", bytes) || !helper.prepare(folder)) return std::nullopt;
    const fs::path made = folder / "out" / helper.made;
    ChildTask task;
    task.program = program;
    task.arguments = helper.arguments(folder);
    task.folder = folder;
    if (helper.prints) task.output = made;
    return RunChild(task, goOn) == ChildEnd::Succeeded ? Made(helper, made) : std::nullopt;
}

} // namespace

NativeDocumentConverter::NativeDocumentConverter(Finder find, Wait wait)
    : find_(std::move(find)), wait_(std::move(wait)) {}

std::optional<std::string> NativeDocumentConverter::Convert(Conversion conversion, std::string_view bytes) {
    if (bytes.size() > kMostBytes) return std::nullopt;
    for (const Helper& helper : kHelpers) {
        if (helper.conversion != conversion) continue;
        const fs::path program = find_(helper.program);
        if (!program.empty()) return Run(helper, program, bytes, wait_());
    }
    return std::nullopt;
}

std::string_view NativeDocumentConverter::Missing(Conversion conversion) const {
    std::string_view missing;
    for (const Helper& helper : kHelpers) {
        if (helper.conversion != conversion) continue;
        if (!find_(helper.program).empty()) return {};
        if (missing.empty()) missing = helper.name;
    }
    return missing;
}

} // namespace korvane
