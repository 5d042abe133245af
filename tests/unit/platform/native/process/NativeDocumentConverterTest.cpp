#include "platform/native/process/NativeDocumentConverter.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <map>

namespace korvane {
namespace {

namespace fs = std::filesystem;

/// Shell scripts take the place of the other programs.
class NativeDocumentConverterTest : public testing::Test {
protected:
    void Install(const std::string& name, const std::string& lines) {
        WriteBytes(dir / name, "#!/bin/sh\n" + lines + "\n");
        fs::permissions(dir / name, fs::perms::owner_all);
        installed[name] = dir / name;
    }
    std::string Dir() const { return dir.Path().string(); }

    TempDir dir;
    std::map<std::string, fs::path> installed;
    /// Whether the user still waits.
    bool waits = true;
    int waited = 0;
    NativeDocumentConverter converter{[this](const std::string& name) { return installed[name]; },
                                      [this] {
                                          ++waited;
                                          return [this] { return waits; };
                                      }};
};

TEST_F(NativeDocumentConverterTest, AnOldWordFileBecomesWhatTheOfficeMakesOfIt) {
    Install("soffice", "printf '%s' '{\\rtf1 ' > out/in.rtf; cat in >> out/in.rtf");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "the bytes"), "{\\rtf1 the bytes");
}

TEST_F(NativeDocumentConverterTest, TheOfficeGetsAProfileOfItsOwnThatFetchesNothing) {
    Install("soffice", "cp profile/user/registrymodifications.xcu " + Dir() +
                           "/settings\nprintf '%s\\n' \"$@\" > " + Dir() + "/arguments");
    EXPECT_EQ(converter.Convert(Conversion::RtfToDoc, "{\\rtf1}"), std::nullopt);
    const std::string settings = ReadBytes(dir / "settings");
    EXPECT_NE(settings.find("BlockUntrustedRefererLinks"), std::string::npos);
    EXPECT_NE(settings.find("DisableActiveContent"), std::string::npos);
    const std::string arguments = ReadBytes(dir / "arguments");
    EXPECT_TRUE(arguments.starts_with("-env:UserInstallation=file:///")) << arguments;
    EXPECT_NE(arguments.find("\ndoc:MS Word 97\n"), std::string::npos) << arguments;
}

TEST_F(NativeDocumentConverterTest, OnlyWhatWasAskedForIsTaken) {
    // The program succeeds in each case.
    Install("soffice", "true");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "x"), std::nullopt);
    Install("soffice", "echo text > out/in.rtf");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "x"), std::nullopt);
    WriteBytes(dir / "secret", "{\\rtf1 secret}");
    Install("soffice", "ln -s " + Dir() + "/secret out/in.rtf");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "x"), std::nullopt);
    Install("soffice", "printf '%s' '{\\rtf1}' > out/in.rtf; exit 1");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "x"), std::nullopt);
}

TEST_F(NativeDocumentConverterTest, WithoutTheOfficeTheTextAloneIsRead) {
    Install("antiword", "printf 'a\\342\\202\\254{\\nb'");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "x"),
              "{\\rtf1\\ansi\\uc0 \\u97 \\u8364 \\u123 \\par\n\\u98 }");
}

TEST_F(NativeDocumentConverterTest, APdfFileBecomesXml) {
    Install("pdftohtml", "for last; do :; done; echo '<?xml version=\"1.0\"?>' > \"$last\"");
    EXPECT_EQ(converter.Convert(Conversion::PdfToXml, "%PDF"), "<?xml version=\"1.0\"?>\n");
}

TEST_F(NativeDocumentConverterTest, NothingIsLeftOnTheDisk) {
    Install("soffice", "pwd > " + Dir() + "/where; mkdir -p more/and/more; echo > more/and/more/file");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "x"), std::nullopt);
    std::string where = ReadBytes(dir / "where");
    where.pop_back();
    EXPECT_FALSE(where.empty());
    EXPECT_FALSE(fs::exists(where));
}

TEST_F(NativeDocumentConverterTest, TheCallerCanEndIt) {
    Install("soffice", "exec tail -f /dev/null");
    waits = false;
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, "x"), std::nullopt);
    EXPECT_EQ(waited, 1);
}

TEST_F(NativeDocumentConverterTest, TellsWhichProgramIsMissing) {
    EXPECT_EQ(converter.Missing(Conversion::DocToRtf), "LibreOffice");
    EXPECT_EQ(converter.Missing(Conversion::RtfToDoc), "LibreOffice");
    EXPECT_EQ(converter.Missing(Conversion::PdfToXml), "pdftohtml (poppler-utils)");
    EXPECT_EQ(converter.Convert(Conversion::PdfToXml, "x"), std::nullopt);
    Install("antiword", "true");
    EXPECT_EQ(converter.Missing(Conversion::DocToRtf), "");
    EXPECT_EQ(converter.Missing(Conversion::RtfToDoc), "LibreOffice");
}

TEST_F(NativeDocumentConverterTest, HugeFilesAreNotTried) {
    Install("soffice", "echo > " + Dir() + "/started");
    EXPECT_EQ(converter.Convert(Conversion::DocToRtf, std::string((64 << 20) + 1, 'x')), std::nullopt);
    EXPECT_FALSE(fs::exists(dir / "started"));
}

} // namespace
} // namespace korvane
