#pragma once

#include "common/number/Number.h"
#include "context/exchange/ListSort.h"
#include "context/exchange/ListerRequest.h"
#include "files/lister/frmGetFileFromTree.h"
#include "support/FakeMainWindow.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace korvane {

/// The lister on a disk in memory, of either path style. The folder "Data" is the current directory; it has
/// the files "b.tbx" (2 bytes) and "a.txt" (1,234 bytes), and the folder "sub" with "c.txt".
class ListerFixture : public testing::TestWithParam<PathStyle> {
protected:
    ListerFixture() {
        t.files.AddFile(At(u"Data/b.tbx"), "b!");
        t.files.AddFile(At(u"Data/a.txt"), std::string(1234, 'a'));
        t.files.AddFile(At(u"Data/sub/c.txt"), "c");
        t.files.SetModified(At(u"Data/a.txt"), {2026, 3, 14, 15, 9, 26});
        t.files.SetModified(At(u"Data/b.tbx"), {2025, 12, 31, 8, 5, 0});
        t.files.ChangeDir(At(u"Data"));
        request.FileDialogFilter = u"*.*";
        request.ChosenFileCount = 1;
        app.Settings.FavGeoTree = -1;
        app.Settings.TreeFormWidthB = 200;
    }

    /// A path of the disk's style for one that is written with "/" and without a root.
    Text At(TextView path) const {
        if (!t.files.Style().HasDrives()) return u"/" + Text(path);
        Text full = u"C:\\" + Text(path);
        std::ranges::replace(full, u'/', u'\\');
        return full;
    }
    bool IsPosix() const { return !t.files.Style().HasDrives(); }

    /// Opens the lister for `script`, and closes it by its button unless the script has closed it.
    template <class ScriptT>
    void Open(ScriptT script) {
        OpenOnly([script](frmGetFileFromTree& f) {
            f.Activate();
            script(f);
            if (f.Shown()) f.cmdCancel.Press();
        });
    }
    /// The same before it is active for the first time.
    template <class ScriptT>
    void OpenOnly(ScriptT script) {
        t.user.On<frmGetFileFromTree>([this, script](frmGetFileFromTree& f) {
            for (const auto& await : std::exchange(awaited_, {}))
                await();
            script(f);
        });
        frmGetFileFromTree(app).ShowModal();
    }
    /// The first box to come when the lister is open.
    void Await(const Message& message, Answer answer) {
        awaited_.push_back([this, message, answer] { t.user.Answer(message, answer); });
    }
    void Await(Answer answer) {
        awaited_.push_back([this, answer] { t.user.Answer(answer); });
    }
    template <class ScriptT>
    void OpenToSave(ScriptT script) {
        request.ListerMode = 1;
        Open(script);
    }

    static std::vector<std::string> Names(const frmGetFileFromTree& f) { return Column(f, 1); }
    static std::vector<std::string> Column(const frmGetFileFromTree& f, int column) {
        std::vector<std::string> texts;
        for (int row = 1; row <= f.ListView1.Count(); ++row)
            texts.push_back(ToUtf8(f.ListView1.TextAt(row, column)));
        return texts;
    }
    static std::vector<std::string> Marked(const frmGetFileFromTree& f) {
        std::vector<std::string> names;
        for (const int row : f.ListView1.SelectedRows())
            names.push_back(ToUtf8(f.ListView1.TextAt(row, 1)));
        return names;
    }
    /// The user goes to the row of this name.
    static void Pick(frmGetFileFromTree& f, TextView name) {
        for (int row = 1; row <= f.ListView1.Count(); ++row)
            if (f.ListView1.TextAt(row, 1) == name) return f.ListView1.Select(row);
        ADD_FAILURE() << "no row " << ToUtf8(name);
    }
    static void Mark(frmGetFileFromTree& f, TextView first, TextView second) {
        Pick(f, first);
        for (int row = 1; row <= f.ListView1.Count(); ++row)
            if (f.ListView1.TextAt(row, 1) == second) f.ListView1.SetSelected(row, true);
    }
    /// Whether the control consumes the key.
    static bool Press(Control& control, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        control.KeyDown(key);
        return key.consumed;
    }
    void AddFiles(int count) {
        for (int number = 1; number <= count; ++number)
            t.files.AddFile(At(u"Many/" + NumberText(10000 + number) + u".txt"), "x");
        t.files.ChangeDir(At(u"Many"));
    }

    TestApp t{GetParam()};
    App& app = t.app;
    FakeMainWindow main{app};
    ListerRequest& request = app.Exchange<ListerRequest>();
    ListSort& sort = app.Exchange<ListSort>();

private:
    std::vector<std::function<void()>> awaited_;
};

inline std::string NameOfStyle(const testing::TestParamInfo<PathStyle>& info) {
    return info.param.HasDrives() ? "Windows" : "Posix";
}

} // namespace korvane

/// Runs the tests of a class with both path styles.
#define KORVANE_IN_BOTH_STYLES(Suite)                                                                        \
    INSTANTIATE_TEST_SUITE_P(Styles, Suite, testing::Values(PathStyle::Windows, PathStyle::Posix),           \
                             NameOfStyle)
