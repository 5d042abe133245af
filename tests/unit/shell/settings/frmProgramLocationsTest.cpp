#include "shell/settings/frmProgramLocations.h"

#include "support/TestApp.h"
#include "unit/shell/settings/FakeDialogs.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

class ProgramLocationsTest : public testing::Test {
protected:
    void InWindow(const std::function<void(frmProgramLocations&)>& act) {
        t.user.On<frmProgramLocations>([&act](frmProgramLocations& f) {
            act(f);
            f.cmdClose.Press();
        });
        frmProgramLocations(t.app).ShowModal();
    }

    TestApp t;
    FakeSystemFileDialog dialog{t.app};
};

TEST_F(ProgramLocationsTest, ShowsTheLocationsUnderItsCaptions) {
    Settings& settings = t.app.Settings;
    settings.WordPath = u"w";
    settings.ExcelPath = u"x";
    settings.PowerPointPath = u"p";
    settings.PublisherPath = u"b";
    settings.AccessPath = u"a";
    InWindow([](frmProgramLocations& f) {
        EXPECT_EQ(f.Caption.Get(), u"Locations of MS Office programs");
        EXPECT_EQ(f.prgText1.Text.Get() + f.prgText2.Text.Get() + f.prgText3.Text.Get() +
                      f.prgText4.Text.Get() + f.prgText5.Text.Get(),
                  u"wxpba");
        EXPECT_EQ(f.cmdWord.ToolTipText.Get(), u"Locate Word on your disk");
        EXPECT_EQ(f.cmdExcel.ToolTipText.Get(), u"Locate Excel on your disk");
        EXPECT_EQ(f.cmdPowerPoint.ToolTipText.Get(), u"Locate PowerPoint on your disk");
        EXPECT_EQ(f.cmdPublisher.ToolTipText.Get(), u"Locate Publisher on your disk");
        EXPECT_EQ(f.cmdAccess.ToolTipText.Get(), u"Locate Access on your disk");
        EXPECT_EQ(f.cmdSameForAll.Caption.Get(), u"&All have same location as Word");
        EXPECT_EQ(f.cmdClose.Caption.Get(), u"&Close");
    });
}

TEST_F(ProgramLocationsTest, EachButtonAsksForItsProgramAndStoresIt) {
    InWindow([this](frmProgramLocations& f) {
        int number = 0;
        for (CommandButton* button :
             {&f.cmdWord, &f.cmdExcel, &f.cmdPowerPoint, &f.cmdPublisher, &f.cmdAccess}) {
            dialog.answer = u"C:\\" + Text(1, static_cast<char16_t>(u'1' + number++));
            button->Press();
        }
        EXPECT_EQ(f.prgText5.Text.Get(), u"C:\\5");
        dialog.answer = std::nullopt;
        f.cmdWord.Press();
    });
    const Settings& settings = t.app.Settings;
    EXPECT_EQ(settings.WordPath, u"C:\\1");
    EXPECT_EQ(settings.ExcelPath, u"C:\\2");
    EXPECT_EQ(settings.PowerPointPath, u"C:\\3");
    EXPECT_EQ(settings.PublisherPath, u"C:\\4");
    EXPECT_EQ(settings.AccessPath, u"C:\\5");
    std::vector<Text> titles;
    for (const auto& request : dialog.requests) {
        titles.push_back(request.title);
        EXPECT_EQ(request.filter, u"Programs (*.exe)|*.exe;All files (*.*)|*.*");
    }
    EXPECT_EQ(titles, (std::vector<Text>{u"Locate MS Word", u"Locate MS Excel", u"Locate MS PowerPoint",
                                         u"Locate MS Publisher", u"Locate MS Access", u"Locate MS Word"}));
}

TEST_F(ProgramLocationsTest, AllCanHaveTheFolderOfWord) {
    t.files.AddFile(u"C:\\Office\\WINWORD.EXE");
    t.app.Settings.WordPath = u"C:\\Office\\WINWORD.EXE";
    InWindow([](frmProgramLocations& f) {
        f.cmdSameForAll.Press();
        EXPECT_EQ(f.prgText1.Text.Get(), u"C:\\Office\\WINWORD.EXE");
        EXPECT_EQ(f.prgText2.Text.Get(), u"C:\\Office\\EXCEL.EXE");
        EXPECT_EQ(f.prgText3.Text.Get(), u"C:\\Office\\POWERPNT.EXE");
        EXPECT_EQ(f.prgText4.Text.Get(), u"C:\\Office\\MSPUB.EXE");
        EXPECT_EQ(f.prgText5.Text.Get(), u"C:\\Office\\MSACCESS.EXE");
    });
    EXPECT_EQ(t.app.Settings.AccessPath, u"C:\\Office\\MSACCESS.EXE");
}

TEST_F(ProgramLocationsTest, AllCanStandInARootToo) {
    t.files.AddFile(u"C:\\WINWORD.EXE");
    t.app.Settings.WordPath = u"C:\\WINWORD.EXE";
    InWindow([](frmProgramLocations& f) { f.cmdSameForAll.Press(); });
    EXPECT_EQ(t.app.Settings.ExcelPath, u"C:\\EXCEL.EXE");
}

TEST_F(ProgramLocationsTest, AllAreBareNamesWhereWordIsOne) {
    t.files.AddDir(u"C:\\Office");
    t.files.ChangeDir(u"C:\\Office");
    t.files.AddFile(u"C:\\Office\\WINWORD.EXE");
    t.app.Settings.WordPath = u"WINWORD.EXE";
    InWindow([](frmProgramLocations& f) { f.cmdSameForAll.Press(); });
    EXPECT_EQ(t.app.Settings.ExcelPath, u"EXCEL.EXE");
    EXPECT_EQ(t.app.Settings.AccessPath, u"MSACCESS.EXE");
}

TEST(ProgramLocationsOnPosix, AllCanHaveTheFolderOfWord) {
    TestApp t(PathStyle::Posix);
    t.files.AddFile(u"/opt/office/writer");
    t.app.Settings.WordPath = u"/opt/office/writer";
    t.user.On<frmProgramLocations>([](frmProgramLocations& f) {
        f.cmdSameForAll.Press();
        f.cmdClose.Press();
    });
    frmProgramLocations(t.app).ShowModal();
    EXPECT_EQ(t.app.Settings.AccessPath, u"/opt/office/MSACCESS.EXE");
}

TEST_F(ProgramLocationsTest, WithoutWordNothingChanges) {
    const Message box{u"Location for MS Word invalid or empty."};
    t.app.Settings.ExcelPath = u"x";
    for (const TextView word : {TextView(), TextView(u"C:\\gone\\WINWORD.EXE")}) {
        t.app.Settings.WordPath = Text(word);
        InWindow([this, &box](frmProgramLocations& f) {
            t.user.Answer(box, Answer::Ok);
            f.cmdSameForAll.Press();
        });
        EXPECT_EQ(t.app.Settings.ExcelPath, u"x");
        EXPECT_EQ(t.app.Settings.AccessPath, u"");
    }
}

} // namespace
} // namespace korvane
