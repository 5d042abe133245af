// Tests what other programs of Windows see on the clipboard, and what they put there.

#include "app/WindowsRtf.h"
#include "platform/qt/services/QtClipboard.h"
#include "platform/qt/text/TextClipboard.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <cstring>
#include <string>

namespace korvane {
namespace {

/// The clipboard as another program has it.
class OpenClipboard {
public:
    OpenClipboard() : open_(::OpenClipboard(nullptr) != 0) {}
    OpenClipboard(const OpenClipboard&) = delete;
    OpenClipboard& operator=(const OpenClipboard&) = delete;
    ~OpenClipboard() {
        if (open_) CloseClipboard();
    }

    bool IsOpen() const { return open_; }

    std::string Get(const char* format) const {
        const HANDLE block = GetClipboardData(RegisterClipboardFormatA(format));
        if (block == nullptr) return {};
        const std::string bytes(static_cast<const char*>(GlobalLock(block)), GlobalSize(block));
        GlobalUnlock(block);
        return bytes;
    }

    void Put(const char* format, const std::string& bytes) const {
        EmptyClipboard();
        const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        std::memcpy(GlobalLock(block), bytes.data(), bytes.size());
        GlobalUnlock(block);
        SetClipboardData(RegisterClipboardFormatA(format), block);
    }

private:
    bool open_;
};

TEST(WindowsClipboardTest, OtherProgramsGetACopiedTextAsRtf) {
    QApplication::clipboard()->setMimeData(RichMime("{\\rtf1 {\\b bold}}", u"bold").release());
    const OpenClipboard other;
    ASSERT_TRUE(other.IsOpen());
    EXPECT_TRUE(other.Get("Rich Text Format").starts_with("{\\rtf1 {\\b bold}}"));
    EXPECT_TRUE(IsClipboardFormatAvailable(CF_UNICODETEXT));
    EXPECT_NE(other.Get("HTML Format").find("bold"), std::string::npos);
}

TEST(WindowsClipboardTest, TheRtfOfOtherProgramsIsFound) {
    {
        const OpenClipboard other;
        ASSERT_TRUE(other.IsOpen());
        other.Put("Rich Text Format", "{\\rtf1 x}");
    }
    ASSERT_TRUE(QtClipboard().GetRtf());
    EXPECT_TRUE(QtClipboard().GetRtf()->starts_with("{\\rtf1 x}"));
    EXPECT_TRUE(RtfIn(*QApplication::clipboard()->mimeData()).starts_with("{\\rtf1 x}"));
}

TEST(WindowsClipboardTest, APlainTextIsNoRtf) {
    QApplication::clipboard()->setText(QStringLiteral("plain"));
    EXPECT_FALSE(QtClipboard().GetRtf());
}

} // namespace
} // namespace korvane

int main(int argc, char** argv) {
    // Off screen, a program has a clipboard of its own.
    qputenv("QT_QPA_PLATFORM", "windows");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    const korvane::WindowsRtf rtf;
    return RUN_ALL_TESTS();
}
