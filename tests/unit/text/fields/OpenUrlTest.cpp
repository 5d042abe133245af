#include "text/fields/OpenUrl.h"

#include "text/fields/frmShowFieldContents.h"
#include "unit/text/fields/FieldStage.h"

namespace korvane {
namespace {

class OpenUrl : public FieldStage {
protected:
    void Select(const Text& text) {
        document.SetAll(text);
        document.SetSelection(0, -1);
    }
    void Expect(const Text& url) {
        t.user.On<frmShowFieldContents>([this, url](frmShowFieldContents& shown) {
            EXPECT_EQ(shown.txtHyperLink.Text.Get(), url);
            EXPECT_EQ(shown.txtHyperLabel.Text.Get(), u"(URL from text selection)");
            EXPECT_EQ(Transit().ReadOnlyLink, 1);
            shown.cmdExit.Press();
        });
    }
};

TEST_F(OpenUrl, NeedsASelection) {
    document.SetSelStart(1);
    t.user.Answer({u"No text selected.", MessageIcon::Information}, Answer::Ok);
    OpenUrlFromSelection(t.app, document);
}

TEST_F(OpenUrl, ShowsTheAddressOfTheSelectionAlone) {
    Select(u"see <https://a.b/c> now");
    Expect(u"https://a.b/c");
    OpenUrlFromSelection(t.app, document);
    EXPECT_EQ(Transit().ReadOnlyLink, 0);
    Select(u"at www.a.b.");
    Expect(u"www.a.b.");
    OpenUrlFromSelection(t.app, document);
}

TEST_F(OpenUrl, AsksAboutASelectionWithoutAnAddress) {
    const Message question{u"\"a.b>\"\r\n\r\nIs this a valid internet URL?", MessageIcon::Question,
                           MessageButtons::YesNo};
    Select(u"a.b>");
    t.user.Answer(question, Answer::No);
    OpenUrlFromSelection(t.app, document);
    t.user.Answer(question, Answer::Yes);
    Expect(u"a.b");
    OpenUrlFromSelection(t.app, document);
}

} // namespace
} // namespace korvane
