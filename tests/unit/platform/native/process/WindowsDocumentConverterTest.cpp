#include "platform/native/process/NativeDocumentConverter.h"
#include "support/TempDir.h"
#include "unit/platform/native/process/ChildProbe.h"

#include <gtest/gtest.h>

#include <map>

namespace korvane {
namespace {

namespace fs = std::filesystem;

/// A program that carries out orders takes the place of the other programs.
class WindowsDocumentConverterTest : public testing::Test {
protected:
    void Install(const std::string& name, const std::string& orders) {
        const fs::path program = dir / (name + ".exe");
        fs::copy_file(ChildProbe(), program, fs::copy_options::overwrite_existing);
        WriteBytes(dir / (name + ".exe.orders"), orders);
        installed[name] = program;
    }

    TempDir dir;
    std::map<std::string, fs::path> installed;
    NativeDocumentConverter converter{[this](const std::string& name) { return installed[name]; },
                                      [] { return [] { return true; }; }};
};

TEST_F(WindowsDocumentConverterTest, AnOldWordFileBecomesWhatTheOfficeMakesOfIt) {
    Install("soffice", "write:out/in.rtf:{\\rtf1 \ncopy:in:out/in.rtf");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "the bytes"), "{\\rtf1 the bytes");
}

TEST_F(WindowsDocumentConverterTest, TheOfficeGetsAProfileOfItsOwnThatFetchesNothing) {
    Install("soffice", "write:out/in.rtf:{\\rtf1 \ncopy:profile/user/registrymodifications.xcu:out/in.rtf");
    const auto made = converter.Convert(Conversion::DocToRtf, "x");
    ASSERT_TRUE(made);
    EXPECT_NE(made->find("BlockUntrustedRefererLinks"), std::string::npos);
}

TEST_F(WindowsDocumentConverterTest, PathsAreWrittenAsWindowsWritesThem) {
    Install("antiword", "folder\narguments");
    const auto made = converter.Convert(Conversion::DocToRtf, "x");
    ASSERT_TRUE(made);
    // Each character of what was printed is a number.
    std::string printed;
    for (std::size_t at = made->find("\\u"); at != std::string::npos; at = made->find("\\u", at + 1)) {
        if (std::isdigit(static_cast<unsigned char>((*made)[at + 2])))
            printed += static_cast<char>(std::stoi(made->substr(at + 2)));
    }
    const std::string folder = printed.substr(0, printed.find("-t|"));
    EXPECT_NE(printed.find("|" + folder + "\\in|"), std::string::npos) << printed;
}

TEST_F(WindowsDocumentConverterTest, APdfFileBecomesXml) {
    Install("pdftohtml", "write:out/in.xml:<?xml version=\"1.0\"?>");
    EXPECT_EQ(converter.Convert(Conversion::PdfToXml, "%PDF"), "<?xml version=\"1.0\"?>");
}

TEST_F(WindowsDocumentConverterTest, OnlyWhatWasAskedForIsTaken) {
    Install("soffice", "write:out/in.rtf:text");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "x"), std::nullopt);
    Install("soffice", "write:out/in.rtf:{\\rtf1}\nexit:1");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "x"), std::nullopt);
}

TEST_F(WindowsDocumentConverterTest, NothingIsLeftOnTheDisk) {
    const auto count = [] {
        std::size_t found = 0;
        for (const auto& entry : fs::directory_iterator(fs::temp_directory_path())) {
            const std::string name = entry.path().filename().string();
            found += name.starts_with("korvane-") && !name.starts_with("korvane-test-") ? 1 : 0;
        }
        return found;
    };
    const std::size_t before = count();
    // It leaves a file open, and a program that has it open.
    Install("soffice", "write:out/in.rtf:{\\rtf1}\nhold:kept");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "x"), "{\\rtf1}");
    EXPECT_EQ(count(), before);
}

} // namespace
} // namespace korvane
