// New names on a disk that doesn't answer.

#include "NamesFixture.h"
#include "files/names/frmDupFile.h"
#include "files/names/frmNewDir.h"
#include "files/names/frmRenDir.h"
#include "files/names/frmRenFile.h"
#include "testing/MemoryPatientDisk.h"

namespace korvane {
namespace {

struct SilentNamesTest : NamesFixture {
    SilentNamesTest() {
        app.SetPort<PatientDisk>(&disk);
        app.DialogResult = 0;
    }
    /// Opens the window on a disk that falls silent, and accepts a name there.
    template <class WindowT>
    void AcceptIn(TextBox WindowT::*field, std::function<void(WindowT&)> whileItWaits) {
        t.user.On<WindowT>([=, this](WindowT& f) {
            (f.*field).Text = u"Fresh.txt";
            disk.Hold();
            t.screen.QueueMessage([&f, whileItWaits] { whileItWaits(f); });
            f.cmdAccept.Press();
            EXPECT_FALSE(f.Shown());
            disk.Release();
        });
        WindowT(app).ShowModal();
        EXPECT_TRUE(t.user.Messages().empty());
        EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
    }
    template <class WindowT>
    void CancelIn(TextBox WindowT::*field) {
        AcceptIn<WindowT>(field, [](WindowT& f) {
            // It doesn't begin a second time.
            f.cmdAccept.Press();
            EXPECT_TRUE(f.Shown());
            f.cmdCancel.Press();
        });
        EXPECT_EQ(app.DialogResult, 0);
        EXPECT_TRUE(t.files.FileExists(u"C:\\Data\\Old.txt"));
        EXPECT_FALSE(t.files.FileExists(u"C:\\Data\\Fresh.txt"));
        EXPECT_FALSE(t.files.DirExists(u"C:\\Data\\Fresh.txt"));
        EXPECT_FALSE(t.files.DirExists(u"C:\\Fresh.txt"));
    }

    MemoryPatientDisk disk{t.files, t.clock};
};

TEST_F(SilentNamesTest, ARenamingCanBeCancelled) {
    CancelIn(&frmRenFile::Text2);
}

TEST_F(SilentNamesTest, ADuplicateCanBeCancelled) {
    CancelIn(&frmDupFile::Text2);
}

TEST_F(SilentNamesTest, ANewFolderCanBeCancelled) {
    CancelIn(&frmNewDir::Text1);
}

TEST_F(SilentNamesTest, TheRenamingOfAFolderCanBeCancelled) {
    CancelIn(&frmRenDir::Text2);
}

TEST_F(SilentNamesTest, ALateAnswerIsEnough) {
    AcceptIn<frmRenFile>(&frmRenFile::Text2, [this](frmRenFile&) { disk.Release(); });
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_TRUE(t.files.FileExists(u"C:\\Data\\Fresh.txt"));
}

TEST_F(SilentNamesTest, ACopyOnADiskThatFallsSilentIsLeftAfterSomeSeconds) {
    t.user.On<frmDupFile>([this](frmDupFile& f) {
        f.Text2.Text = u"Fresh.txt";
        constexpr int kTheFolder = 1;
        disk.HoldAfter(kTheFolder);
        t.screen.QueueMessage([&f] {
            f.cmdCancel.Press();
            EXPECT_TRUE(f.Shown());
        });
        f.cmdAccept.Press();
        EXPECT_FALSE(f.Shown());
        disk.Release();
    });
    frmDupFile(app).ShowModal();
    EXPECT_EQ(app.DialogResult, 0);
    EXPECT_GE(t.clock.Uptime(), std::chrono::seconds(3));
    EXPECT_LT(t.clock.Uptime(), std::chrono::seconds(4));
    EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
}

} // namespace
} // namespace korvane
