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

/// A program with the folder C:\Data and its file Old.txt, and that folder the current one.
struct NamesFixture : testing::Test {
    NamesFixture() {
        t.files.AddFile(u"C:\\Data\\Old.txt", "bytes");
        t.files.ChangeDir(u"C:\\Data");
        file.FileOpFolder = u"C:\\Data";
        file.FileOpName = u"Old.txt";
        lister.ListerFolder = u"C:\\Data";
    }

    TestApp t;
    App& app = t.app;
    FileOperation& file = app.Exchange<FileOperation>();
    ListerRequest& lister = app.Exchange<ListerRequest>();
};

/// The same where paths are written with "/".
struct PosixNamesFixture : testing::Test {
    PosixNamesFixture() {
        t.files.AddFile(u"/home/me/Old.txt", "bytes");
        t.files.ChangeDir(u"/home/me");
        file.FileOpFolder = u"/home/me";
        file.FileOpName = u"Old.txt";
        lister.ListerFolder = u"/home/me";
    }

    TestApp t{PathStyle::Posix};
    App& app = t.app;
    FileOperation& file = app.Exchange<FileOperation>();
    ListerRequest& lister = app.Exchange<ListerRequest>();
};

} // namespace korvane
