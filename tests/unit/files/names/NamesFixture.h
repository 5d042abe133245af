#pragma once

#include "context/exchange/FileOperation.h"
#include "context/exchange/ListerRequest.h"
#include "controls/TextBox.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {

/// Presses a key in a field; whether it was kept from it.
inline bool PressIn(TextBox& field, int code, int mask = Mask::None) {
    KeyEvent key{code, mask};
    if (field.KeyDown) field.KeyDown(key);
    return key.consumed;
}

/// A program with a folder that is the current one, and its file Old.txt.
struct FolderFixture : testing::Test {
    FolderFixture(PathStyle style, const Text& folder) : t(style) {
        t.files.AddFile(style.JoinPath(folder, u"Old.txt"), "bytes");
        t.files.ChangeDir(folder);
        file.FileOpFolder = folder;
        file.FileOpName = u"Old.txt";
        lister.ListerFolder = folder;
    }

    TestApp t;
    App& app = t.app;
    FileOperation& file = app.Exchange<FileOperation>();
    ListerRequest& lister = app.Exchange<ListerRequest>();
};

struct NamesFixture : FolderFixture {
    NamesFixture() : FolderFixture(PathStyle::Windows, u"C:\\Data") {}
};

struct PosixNamesFixture : FolderFixture {
    PosixNamesFixture() : FolderFixture(PathStyle::Posix, u"/home/me") {}
};

/// Shows the window to a script, on either kind of disk.
template <class WindowT, class FixtureT = NamesFixture>
struct NameWindowTest : FixtureT {
    template <class ScriptT>
    void Show(ScriptT script) {
        this->app.DialogResult = 0;
        this->t.user.template On<WindowT>(script);
        WindowT(this->app).ShowModal();
    }
};

} // namespace korvane
