#pragma once

#include "ListerFixture.h"
#include "testing/MemoryPatientDisk.h"

namespace korvane {

/// The lister on a disk that can fall silent.
class SilentDiskFixture : public ListerFixture {
protected:
    SilentDiskFixture() { app.SetPort<PatientDisk>(&disk); }

    /// What the user does once it is clear that the lister waits.
    void WhileItWaits(std::function<void()> act) { t.screen.QueueMessage(std::move(act)); }
    /// Presses the button while the question after so many ones is waited for.
    void StopAfter(frmGetFileFromTree& f, int questions) {
        WhileItWaits([this, &f, questions] {
            if (disk.Asked() <= questions) return StopAfter(f, questions);
            f.cmdEscape.Press();
        });
    }
    static void ExpectAWait(const frmGetFileFromTree& f) {
        EXPECT_TRUE(f.ProgressBar1.Visible);
        EXPECT_TRUE(f.cmdEscape.Visible);
        EXPECT_FALSE(f.ListView1.Visible);
        EXPECT_EQ(f.Focused(), &f.cmdEscape);
    }
    static void ExpectNoWait(const frmGetFileFromTree& f) {
        EXPECT_FALSE(f.ProgressBar1.Visible);
        EXPECT_FALSE(f.cmdEscape.Visible);
        EXPECT_TRUE(f.ListView1.Visible);
    }
    /// Goes to a folder whose disk doesn't answer until the user stops it.
    void GoToSilent(frmGetFileFromTree& f) {
        disk.Hold();
        WhileItWaits([&f] {
            ExpectAWait(f);
            f.cmdEscape.Press();
        });
        f.TreeView1.Select(At(u"Data/sub"));
        disk.Release();
    }

    MemoryPatientDisk disk{t.files, t.clock};
};
} // namespace korvane
