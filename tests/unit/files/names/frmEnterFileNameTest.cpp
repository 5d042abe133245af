#include "files/names/frmEnterFileName.h"

#include "files/names/NameLine.h"
#include "support/DesignerFile.h"
#include "unit/files/names/NamesFixture.h"

namespace korvane {
namespace {

/// The line of a lister that isn't there.
struct FakeLine final : NameLine {
    Text FileName() const override { return name; }
    void SetFileName(TextView text) override { name = text; }
    void SetPattern(TextView text) override { pattern = text; }

    Text name = u"Start.txt";
    Text pattern = u"*.*";
};

struct EnterFileNameTest : NamesFixture {
    template <class ScriptT>
    void Show(ScriptT script) {
        app.DialogResult = 0;
        t.user.On<frmEnterFileName>(script);
        frmEnterFileName(app, line).ShowModal();
    }
    /// What the field holds after a key.
    Text After(TextView name, int code, int mask = Mask::None) {
        Text result;
        Show([&](frmEnterFileName& f) {
            f.txtFileName.Type(name);
            EXPECT_TRUE(PressIn(f.txtFileName, code, mask));
            result = f.txtFileName.Text;
            f.OfficeMenu1.Choose("mnuAccept");
        });
        EXPECT_EQ(line.name, result);
        return result;
    }

    FakeLine line;
};

TEST_F(EnterFileNameTest, HasItsTextsAndTheListersName) {
    Show([](frmEnterFileName& f) {
        EXPECT_EQ(f.Frame1.Caption.Get(),
                  u" Enter name of file to save    ( F5 = increase font; Ctrl-F5 = descrease font ) ");
        EXPECT_EQ(f.txtFileName.Text.Get(), u"Start.txt");
        EXPECT_EQ(f.Caption.Get(), u"Name length: 9 chars.");
        EXPECT_EQ(f.Focused(), &f.txtFileName);
        const auto entries = f.OfficeMenu1.Entries();
        ASSERT_EQ(entries.size(), 3u);
        EXPECT_EQ(entries[0].caption, u"&Reject");
        EXPECT_EQ(entries[1].caption, u"&Accept");
        EXPECT_EQ(entries[2].caption, u"Accept and &Save");
        ExpectLook(f, "files/names",
                   {"Ctrl(Shift)-U = spaces to underscores (and Caps)",
                    "Ctrl-T = Add date to end of file name", "F3 = Toggle extension",
                    "Ctrl-F3 = Caps + DOCX"});
        f.OfficeMenu1.Choose("mnuReject");
    });
}

TEST_F(EnterFileNameTest, TheListersLineFollowsTheTyping) {
    Show([this](frmEnterFileName& f) {
        f.txtFileName.Type(u"N");
        EXPECT_EQ(line.name, u"N");
        EXPECT_EQ(f.Caption.Get(), u"Name length: 1 chars.");
        f.txtFileName.Type(u"Ne");
        EXPECT_EQ(line.name, u"Ne");
        EXPECT_EQ(f.Caption.Get(), u"Name length: 2 chars.");
        f.OfficeMenu1.Choose("mnuAccept");
    });
    EXPECT_EQ(line.name, u"Ne");
    EXPECT_EQ(app.DialogResult, 1);
}

TEST_F(EnterFileNameTest, RejectPutsTheNameBack) {
    Show([](frmEnterFileName& f) {
        f.txtFileName.Type(u"New");
        f.OfficeMenu1.Choose("mnuReject");
    });
    EXPECT_EQ(line.name, u"Start.txt");
    EXPECT_EQ(app.DialogResult, 0);
    Show([](frmEnterFileName& f) {
        f.txtFileName.Type(u"New");
        EXPECT_TRUE(PressIn(f.txtFileName, Key::Escape));
    });
    EXPECT_EQ(line.name, u"Start.txt");
    EXPECT_EQ(app.DialogResult, 0);
}

TEST_F(EnterFileNameTest, ReturnAcceptsAndCtrlSSavesAtOnce) {
    Show([](frmEnterFileName& f) { EXPECT_TRUE(PressIn(f.txtFileName, Key::Return)); });
    EXPECT_EQ(app.DialogResult, 1);
    Show([](frmEnterFileName& f) { EXPECT_TRUE(PressIn(f.txtFileName, 'S', Mask::Ctrl)); });
    EXPECT_EQ(app.DialogResult, 9);
    Show([](frmEnterFileName& f) { f.OfficeMenu1.Choose("mnuAcceptSave"); });
    EXPECT_EQ(app.DialogResult, 9);
}

TEST_F(EnterFileNameTest, F3GoesRoundTheExtensionsAndThePatternFollows) {
    EXPECT_EQ(After(u"a.docx", Key::F(3)), u"a.txt");
    EXPECT_EQ(line.pattern, u"*.txt");
    EXPECT_EQ(After(u"a.txt", Key::F(3)), u"a.rtf");
    EXPECT_EQ(line.pattern, u"*.rtf");
    EXPECT_EQ(After(u"a.rtf", Key::F(3)), u"a.docx");
    EXPECT_EQ(line.pattern, u"*.docx");
    EXPECT_EQ(After(u"a", Key::F(3)), u"a.txt");
    EXPECT_EQ(line.pattern, u"*.txt");
}

TEST_F(EnterFileNameTest, F3LeavesAnotherExtensionAndThePattern) {
    EXPECT_EQ(After(u"a.tbx", Key::F(3)), u"a.tbx");
    EXPECT_EQ(line.pattern, u"*.*");
}

TEST_F(EnterFileNameTest, CtrlF3TidiesWithCapitalsForADocx) {
    EXPECT_EQ(After(u"letters to ann. and ben.txt", Key::F(3), Mask::Ctrl), u"Letters_to_Ann__and_Ben.docx");
    EXPECT_EQ(line.pattern, u"*.docx");
}

TEST_F(EnterFileNameTest, CtrlTAddsTheDate) {
    EXPECT_EQ(After(u"a.b.txt", 'T', Mask::Ctrl), u"a.b_(21-Nov-2026).txt");
}

TEST_F(EnterFileNameTest, CtrlUTidiesAndWithShiftSetsCapitals) {
    EXPECT_EQ(After(u"letters to.ann,ben.txt", 'U', Mask::Ctrl), u"letters_to_ann_ben.txt");
    EXPECT_EQ(After(u"letters to.ann,ben.txt", 'U', Mask::Ctrl | Mask::Shift), u"Letters_to_Ann_Ben.txt");
}

// Kept for compatibility: file-name-font-without-limits.
TEST_F(EnterFileNameTest, TheFontSizeHasNoLimits) {
    app.Settings.EnterNameB = 12;
    Show([](frmEnterFileName& f) {
        EXPECT_EQ(f.txtFileName.Font.Get().size, 12);
        for (int times = 0; times < 200; ++times)
            PressIn(f.txtFileName, Key::F(5));
        EXPECT_EQ(f.txtFileName.Font.Get().size, 212);
        for (int times = 0; times < 210; ++times)
            PressIn(f.txtFileName, Key::F(5), Mask::Ctrl);
        EXPECT_EQ(f.txtFileName.Font.Get().size, 2);
        f.OfficeMenu1.Choose("mnuAccept");
    });
    EXPECT_EQ(app.Settings.EnterNameB, 2);
}

TEST_F(EnterFileNameTest, AFontSizeThatWasNeverStoredIsTheDesignedOne) {
    Show([](frmEnterFileName& f) {
        EXPECT_EQ(f.txtFileName.Font.Get().size, 10);
        f.OfficeMenu1.Choose("mnuAccept");
    });
}

TEST_F(EnterFileNameTest, KeepsItsWidth) {
    Show([](frmEnterFileName& f) {
        EXPECT_EQ(f.Width.Get(), Twips{0});
        f.Width = Twips{9000};
        f.OfficeMenu1.Choose("mnuAccept");
    });
    EXPECT_EQ(app.Settings.EnterNameA, 9000);
    Show([](frmEnterFileName& f) {
        EXPECT_EQ(f.Width.Get(), Twips{9000});
        f.OfficeMenu1.Choose("mnuAccept");
    });
}

TEST_F(EnterFileNameTest, CtrlShiftF1StartsLorritWithTheListersFolder) {
    t.files.AddFile(u"C:\\Drive_G\\Sandrel\\Hadrell\\Lorrit\\Lorrit.exe");
    Show([](frmEnterFileName& f) {
        EXPECT_TRUE(PressIn(f.txtFileName, Key::F(1), Mask::Ctrl | Mask::Shift));
        f.OfficeMenu1.Choose("mnuAccept");
    });
    ASSERT_EQ(t.shell.Starts().size(), 1u);
    EXPECT_EQ(t.shell.Starts()[0].program, u"C:\\Drive_G\\Sandrel\\Hadrell\\Lorrit\\Lorrit.exe");
    EXPECT_EQ(t.shell.Starts()[0].arguments, std::vector<Text>{u"C:\\Data"});
}

TEST_F(EnterFileNameTest, OtherKeysGoToTheField) {
    Show([](frmEnterFileName& f) {
        EXPECT_FALSE(PressIn(f.txtFileName, 'A'));
        EXPECT_FALSE(PressIn(f.txtFileName, Key::F(3), Mask::Shift));
        EXPECT_FALSE(PressIn(f.txtFileName, Key::Return, Mask::Ctrl));
        f.OfficeMenu1.Choose("mnuAccept");
    });
}

} // namespace
} // namespace korvane
