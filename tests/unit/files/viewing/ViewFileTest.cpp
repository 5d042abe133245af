#include "files/viewing/ViewFile.h"

#include "context/exchange/FileOperation.h"
#include "support/FakeViewers.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ViewFileTest : public testing::Test {
protected:
    TestApp t;
    FakeTextFileViewer texts{t.app};
};

TEST_F(ViewFileTest, PutsTheFileAtHand) {
    ViewFile(t.app, u"C:\\Data\\a.tbx");
    EXPECT_EQ(t.app.Exchange<FileOperation>().FileOpFolder, u"C:\\Data");
    EXPECT_EQ(t.app.Exchange<FileOperation>().FileOpName, u"C:\\Data\\a.tbx");
}

TEST_F(ViewFileTest, TheFolderOfAFileInARootIsTheRoot) {
    ViewFile(t.app, u"C:\\a.tbx");
    EXPECT_EQ(t.app.Exchange<FileOperation>().FileOpFolder, u"C:\\");
    TestApp posix(PathStyle::Posix);
    ViewFile(posix.app, u"/a.tbx");
    EXPECT_EQ(posix.app.Exchange<FileOperation>().FileOpFolder, u"/");
}

TEST_F(ViewFileTest, AFileOfNoTypeIsShownAsAText) {
    ViewFile(t.app, u"C:\\Data\\a.tbx");
    EXPECT_THAT(texts.viewed, ElementsAre(u"C:\\Data\\a.tbx"));
}

TEST_F(ViewFileTest, AFileThatATypeTakesIsNotShownAsAText) {
    FakePageViewer pages(t.app);
    ViewFile(t.app, u"C:\\Data\\a.htm");
    EXPECT_THAT(pages.viewed, ElementsAre(u"C:\\Data\\a.htm"));
    EXPECT_THAT(texts.viewed, IsEmpty());
}

TEST_F(ViewFileTest, ALargeTextIsAskedAbout) {
    t.files.AddFile(u"C:\\Data\\a.tbx", std::string(1'000'001, 'x'));
    t.user.Answer(Answer::No);
    ViewFile(t.app, u"C:\\Data\\a.tbx");
    EXPECT_THAT(texts.viewed, IsEmpty());
    t.user.Answer(Answer::Yes);
    ViewFile(t.app, u"C:\\Data\\a.tbx");
    EXPECT_THAT(texts.viewed, ElementsAre(u"C:\\Data\\a.tbx"));
}

TEST_F(ViewFileTest, AWordFileWhoseQuestionIsGivenUpIsShownAsAText) {
    t.app.Settings.TypeDispatchOpt = 1;
    t.user.Answer(Answer::Cancel);
    ViewFile(t.app, u"C:\\Data\\a.doc");
    EXPECT_THAT(texts.viewed, ElementsAre(u"C:\\Data\\a.doc"));
}

TEST_F(ViewFileTest, ABareNameIsInTheCurrentDirectory) {
    t.app.Exchange<FileOperation>().FileOpFolder = u"C:\\Data";
    t.app.Exchange<FileOperation>().FileOpName = u"a.tbx";
    ViewFileAtHand(t.app);
    EXPECT_THAT(texts.viewed, ElementsAre(u"a.tbx"));
}

TEST_F(ViewFileTest, WithoutATextWindowNothingHappens) {
    t.app.SetPort<TextFileViewer>(nullptr);
    ViewFile(t.app, u"C:\\Data\\a.tbx");
    EXPECT_THAT(t.shell.Opened(), IsEmpty());
}

} // namespace
} // namespace korvane
