#include "files/viewing/ConfirmLargeFile.h"

#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class ConfirmLargeFileTest : public testing::Test {
protected:
    void AddFileOf(std::size_t bytes) { t.files.AddFile(kPath, std::string(bytes, 'x')); }
    /// The question about the file, with its size as it is shown.
    static Message Question(const Text& size) {
        return {u"File name: a.txt\t\r\n\r\nFile size:    " + size + u" KB\r\n\r\nView this large file ?\r\n",
                MessageIcon::Question, MessageButtons::YesNo, 2};
    }

    const Text kPath = u"C:\\Data\\a.txt";
    TestApp t;
};

TEST_F(ConfirmLargeFileTest, AMillionBytesOpenWithoutAQuestion) {
    AddFileOf(1'000'000);
    EXPECT_TRUE(ConfirmLargeFile(t.app, kPath));
}

TEST_F(ConfirmLargeFileTest, OneByteMoreAsks) {
    AddFileOf(1'000'001);
    t.user.Answer(Question(u"1,000"), Answer::Yes);
    EXPECT_TRUE(ConfirmLargeFile(t.app, kPath));
    t.user.Answer(Question(u"1,000"), Answer::No);
    EXPECT_FALSE(ConfirmLargeFile(t.app, kPath));
}

TEST_F(ConfirmLargeFileTest, ShowsThousandsOfBytesRoundedTiesUp) {
    AddFileOf(1'234'499);
    t.user.Answer(Question(u"1,234"), Answer::No);
    ConfirmLargeFile(t.app, kPath);
    AddFileOf(1'234'500);
    t.user.Answer(Question(u"1,235"), Answer::No);
    ConfirmLargeFile(t.app, kPath);
}

TEST_F(ConfirmLargeFileTest, AFileThatIsGoneIsSmall) {
    EXPECT_TRUE(ConfirmLargeFile(t.app, kPath));
}

TEST_F(ConfirmLargeFileTest, ABareNameIsMeasuredInTheCurrentDirectory) {
    AddFileOf(1'000'001);
    t.files.ChangeDir(u"C:\\Data");
    t.user.Answer(Question(u"1,000"), Answer::No);
    EXPECT_FALSE(ConfirmLargeFile(t.app, u"a.txt"));
}

} // namespace
} // namespace korvane
