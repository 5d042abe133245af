// Names at the limits of the rules for new ones.

#include "context/exchange/FileOperation.h"
#include "context/exchange/ListerRequest.h"
#include "files/names/NameTyping.h"
#include "files/names/frmDupFile.h"
#include "files/names/frmNewDir.h"
#include "files/names/frmRenDir.h"
#include "support/InBothStyles.h"

namespace korvane {
namespace {

class NamesTest : public InBothStyles {
protected:
    NamesTest() {
        t.files.AddFile(At(u"Data/Old.txt"), "bytes");
        t.files.AddDir(At(u"Data/Old"));
        t.files.ChangeDir(At(u"Data"));
        app.Exchange<FileOperation>().FileOpFolder = At(u"Data");
        app.Exchange<FileOperation>().FileOpName = u"Old.txt";
        app.Exchange<ListerRequest>().ListerFolder = At(u"Data/Old");
        app.DialogResult = 0;
    }
    template <class WindowT, class ScriptT>
    void Show(ScriptT script) {
        t.user.On<WindowT>(script);
        WindowT(app).ShowModal();
    }
};
KORVANE_IN_BOTH_STYLES(NamesTest);

TEST_P(NamesTest, APhraseThatBeginsWithASmallWordGetsACapitalAllTheSame) {
    Show<frmNewDir>([](frmNewDir& f) {
        f.Text1.Type(u"the house of glass");
        f.cmdUnderscoreCaps.Press();
        EXPECT_EQ(f.Text1.Text.Get(), u"The_House_of_Glass");
        f.cmdAccept.Press();
    });
    EXPECT_TRUE(t.files.DirExists(At(u"Data/The_House_of_Glass")));
    Show<frmRenDir>([](frmRenDir& f) {
        f.Text2.Type(u"through glass by night");
        f.cmdUnderscoreCaps.Press();
        EXPECT_EQ(f.Text2.Text.Get(), u"Through_Glass_by_Night");
        f.cmdAccept.Press();
    });
    EXPECT_TRUE(t.files.DirExists(At(u"Data/Through_Glass_by_Night")));
}

TEST_P(NamesTest, AForbiddenCharacterMakesNoFolder) {
    Show<frmNewDir>([this](frmNewDir& f) {
        for (const char16_t forbidden : TextView(u"\\/?:*\"><|")) {
            t.user.Answer(Answer::Ok);
            f.Text1.Type(u"a" + Text(1, forbidden));
            f.cmdAccept.Press();
            EXPECT_TRUE(f.Shown());
        }
        f.cmdCancel.Press();
    });
    EXPECT_EQ(t.files.FolderNames(At(u"Data")), std::vector<Text>{u"Old"});
}

TEST_P(NamesTest, AFolderThatDiffersByCaseOnlyIsThereWhereTheDiskSaysSo) {
    Show<frmRenDir>([this](frmRenDir& f) {
        f.Text2.Type(u"OLD");
        if (IsPosix()) return f.cmdAccept.Press();
        t.user.Answer(Answer::Ok);
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.DialogResult, IsPosix() ? 1 : 0);
    EXPECT_EQ(t.files.FolderNames(At(u"Data")), std::vector<Text>{IsPosix() ? u"OLD" : u"Old"});
}

TEST_P(NamesTest, ADuplicateWithoutANameFailsInTheCopy) {
    Show<frmDupFile>([this](frmDupFile& f) {
        t.user.Answer(Answer::Ok);
        f.Text2.Type(u"");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.DialogResult, 0);
    EXPECT_EQ(t.files.FileNames(At(u"Data"), u"*"), std::vector<Text>{u"Old.txt"});
}

} // namespace
} // namespace korvane
