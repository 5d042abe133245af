#include "shell/main/StartPage.h"

#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class StartPageTest : public testing::Test {
protected:
    StartPageTest() {
        for (const TextView name : {u"C:\\Data\\a.tbx", u"C:\\Data\\b & c.tbx"})
            p.AddTable(Text(name), {"x"});
        p.files.AddFile(u"C:\\Korvane\\Korvane.rec", "C:\\Data\\b & c.tbx | 0*2026.03.01   14:05\r\n"
                                                     "C:\\Data\\gone.tbx | 0*2026.03.01   14:05\r\n"
                                                     "C:\\Data\\a.tbx | 0*2026.03.01   14:05\r\n");
    }
    CommandButton& Button(const char* name) { return dynamic_cast<CommandButton&>(*p.Main().Find(name)); }

    TestProgram p;
};

TEST_F(StartPageTest, ListsTheRecentFilesThatAreThere) {
    p.StartWith({});
    EXPECT_TRUE(p.Main().Find("lblStart")->Visible);
    EXPECT_EQ(Button("cmdStart1").Caption.Get(), u"b && c.tbx    C:\\Data");
    EXPECT_EQ(Button("cmdStart1").ToolTipText.Get(), u"C:\\Data\\b & c.tbx");
    EXPECT_EQ(Button("cmdStart2").Caption.Get(), u"a.tbx    C:\\Data");
    EXPECT_TRUE(Button("cmdStart2").Visible);
    EXPECT_FALSE(Button("cmdStart3").Visible);
    EXPECT_FALSE(Button("cmdSample").Visible);
}

TEST_F(StartPageTest, AClickOpensTheFile) {
    p.StartWith({});
    Button("cmdStart1").Press();
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"b & c.tbx"}));
    EXPECT_EQ(p.files.CurrentDir(), u"C:\\Data");
}

TEST_F(StartPageTest, AFileThatIsGoneByThenIsTold) {
    p.StartWith({});
    p.files.Erase(u"C:\\Data\\a.tbx");
    p.user.Answer(Answer::Ok);
    Button("cmdStart2").Press();
    EXPECT_TRUE(p.Captions().empty());
}

TEST_F(StartPageTest, TheListIsNewWhenTheLastTabHasClosed) {
    p.StartWith({}, u"C:\\Data\\a.tbx");
    p.AddTable(u"C:\\Data\\d.tbx", {"x"});
    p.Open(u"C:\\Data\\d.tbx");
    p.Choose("mnuFile_Close");
    p.Choose("mnuFile_Close");
    EXPECT_EQ(Button("cmdStart1").Caption.Get(), u"d.tbx    C:\\Data");
}

TEST_F(StartPageTest, TheSampleIsOfferedWhereItIs) {
    p.AddTable(u"C:\\Korvane\\samples\\Books.tbx", {"x"});
    p.StartWith({});
    EXPECT_TRUE(Button("cmdSample").Visible);
    EXPECT_EQ(Button("cmdSample").Caption.Get(), u"Sample: Books.tbx    C:\\Korvane\\samples");
    Button("cmdSample").Press();
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Books.tbx"}));
}

TEST_F(StartPageTest, WithoutARecordNothingIsListed) {
    p.files.Erase(u"C:\\Korvane\\Korvane.rec");
    p.StartWith({});
    EXPECT_FALSE(p.Main().Find("lblStart")->Visible);
    EXPECT_FALSE(Button("cmdStart1").Visible);
}

} // namespace
} // namespace korvane
