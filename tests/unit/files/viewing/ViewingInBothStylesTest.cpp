// Files at the limits of the rules by which they are viewed.

#include "context/exchange/FileOperation.h"
#include "files/viewing/ConfirmLargeFile.h"
#include "files/viewing/ViewFile.h"
#include "files/viewing/ViewFileByType.h"
#include "support/FakeViewers.h"
#include "support/InBothStyles.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ViewingTest : public InBothStyles {
protected:
    FakeTextFileViewer texts{app};
    FakePageViewer pages{app};
};
KORVANE_IN_BOTH_STYLES(ViewingTest);

TEST_P(ViewingTest, AMillionBytesOpenWithoutAQuestionAndOneMoreAsks) {
    t.files.AddFile(At(u"Data/a.tbx"), std::string(1'000'000, 'x'));
    EXPECT_TRUE(ConfirmLargeFile(app, At(u"Data/a.tbx")));
    t.files.AddFile(At(u"Data/a.tbx"), std::string(1'000'001, 'x'));
    t.user.Answer({u"File name: a.tbx\t\r\n\r\nFile size:    1,000 KB\r\n\r\nView this large file ?\r\n",
                   MessageIcon::Question, MessageButtons::YesNo, 2},
                  Answer::No);
    EXPECT_FALSE(ConfirmLargeFile(app, At(u"Data/a.tbx")));
}

TEST_P(ViewingTest, CapitalsOfAnExtensionDontMatter) {
    EXPECT_TRUE(ViewFileByType(app, At(u"Data/a.dOcX")));
    EXPECT_THAT(texts.viewed, ElementsAre(At(u"Data/a.dOcX")));
}

// Kept for compatibility: long-office-extensions.
TEST_P(ViewingTest, LongOfficeExtensionsAndJpegAreNotTaken) {
    for (const TextView name : {u"Data/a.pptx", u"Data/a.xlsx", u"Data/a.jpeg"})
        EXPECT_FALSE(ViewFileByType(app, At(name))) << ToUtf8(name);
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
    EXPECT_THAT(t.shell.Opened(), IsEmpty());
}

TEST_P(ViewingTest, ACancelAtTheWordQuestionShowsTheFileAsATextOrDoesNothing) {
    app.Settings.TypeDispatchOpt = 1;
    t.user.Answer(Answer::Cancel);
    EXPECT_FALSE(ViewFileByType(app, At(u"Data/a.doc")));
    EXPECT_THAT(texts.viewed, IsEmpty());
    t.user.Answer(Answer::Cancel);
    ViewFile(app, At(u"Data/a.doc"));
    EXPECT_THAT(texts.viewed, ElementsAre(At(u"Data/a.doc")));
}

TEST_P(ViewingTest, AnArgumentThatHoldsAQuoteLosesItsOuterCharacters) {
    t.files.AddFile(At(u"pdf.exe"));
    app.Settings.PdfViewerPath = At(u"pdf.exe");
    EXPECT_TRUE(ViewFileByType(app, u"x" + At(u"a\".pdf")));
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{At(u"pdf.exe"), {At(u"a.pd")}}));
}

} // namespace
} // namespace korvane
