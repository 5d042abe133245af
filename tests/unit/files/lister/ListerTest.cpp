#include "files/lister/Lister.h"

#include "ListerFixture.h"
#include "context/FileChooser.h"
#include "context/ports/FilePicker.h"
#include "files/lists/frmFavouriteLocations.h"

namespace korvane {
namespace {

class ListerTest : public ListerFixture {
protected:
    ListerTest() { app.SetPort<FilePicker>(&lister); }

    Lister lister{app};
};
KORVANE_IN_BOTH_STYLES(ListerTest);

TEST_P(ListerTest, AnswersWhoeverHasAFileChosen) {
    t.user.On<frmGetFileFromTree>([](frmGetFileFromTree& f) {
        f.Activate();
        EXPECT_EQ(f.Caption.Get(), u"Save database to disk");
        EXPECT_EQ(f.txtSearchSpec.Text.Get(), u"*.tbx");
        EXPECT_EQ(f.txtFileName.Text.Get(), u"old.tbx");
        f.txtFileName.Type(u"new.tbx");
        f.cmdOk.Press();
    });
    ShowFileChooser(app, ChooserMode::Save, u"*.tbx", u"Save database to disk", At(u"x/old.tbx"));
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/new.tbx"));
    EXPECT_EQ(request.FileDialogFilter, u"0");
    EXPECT_EQ(request.FileDialogCaption, u"");
}

TEST_P(ListerTest, IsAListerOfDirectoriesToo) {
    t.user.On<frmGetFileFromTree>([](frmGetFileFromTree& f) {
        f.Activate();
        EXPECT_EQ(f.Caption.Get(), u"Directory lister");
        EXPECT_EQ(f.txtSearchSpec.Text.Get(), u"*.*");
        f.ListView1.DoubleClick(1);
        EXPECT_FALSE(f.Shown());
    });
    ShowDirectoryLister(app);
    EXPECT_EQ(request.FileDialogFilter, u"0");
}

TEST_P(ListerTest, ShowsTheFavouritesWithTheFolderToAdd) {
    request.ListerFolder = At(u"Data");
    t.user.On<frmFavouriteLocations>([this](frmFavouriteLocations& favourites) {
        favourites.cmdAddFolder.Press();
        EXPECT_EQ(favourites.List1.List(0), At(u"Data"));
        favourites.cmdExit.Press();
    });
    lister.Show();
}

} // namespace
} // namespace korvane
