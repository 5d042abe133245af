#pragma once

#include "context/exchange/FieldInTransit.h"
#include "context/ports/FileViewer.h"
#include "context/ports/OpenText.h"
#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "support/FakeSystemFileDialog.h"
#include "support/FakeViewers.h"
#include "support/TestApp.h"
#include "text/files/DocumentFiles.h"

#include <gtest/gtest.h>

#include <vector>

namespace korvane {

/// Remembers which files were to be shown or opened.
class FakeFileViewer final : public FileViewer {
public:
    explicit FakeFileViewer(App& app) { app.SetPort<FileViewer>(this); }
    std::vector<Text> viewed;
    std::vector<Text> openedWith;

    void View(TextView path) override { viewed.emplace_back(path); }
    void OpenWith(TextView path) override { openedWith.emplace_back(path); }
};

/// A document with a note (field 1) and a hyperlink (field 2).
class FieldStage : public testing::Test {
protected:
    FieldStage() {
        t.app.SetPort<TextFiles>(&documents);
        t.app.SetPort<OpenText>(&open);
        document.Files = &documents;
        scratch.Files = &documents;
        document.SetAll(u"one  two");
        document.SetSelStart(4);
        document.FieldInsert(u"mark");
        document.SetFieldData(1, u"my\r\nnote");
        document.SetSelStart(static_cast<int>(document.All().size()));
        document.FieldInsert(u"link");
        document.SetFieldType(2, 1);
        document.SetFieldTypeData(2, u"www.a.b");
        document.SetDataChanged(false);
    }

    FieldInTransit& Transit() { return t.app.Exchange<FieldInTransit>(); }

    TestApp t;
    DocumentFiles documents{t.files, CodePage::Windows1252(), nullptr};
    FakeSystemFileDialog chooser{t.app};
    FakePageViewer pages{t.app};
    FakeFileViewer viewer{t.app};
    Form form{t.user, "Form", u""};
    TextControl document{form, "document"};
    TextControl scratch{form, "scratch"};
    OpenText open{document, scratch};
};

} // namespace korvane
