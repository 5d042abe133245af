#pragma once

#include "context/App.h"
#include "controls/text/TextControl.h"
#include "dbops/windows/frmDelimiterType.h"
#include "dbops/windows/frmViewCell.h"
#include "dialogs/frmTxtInfo.h"
#include "files/jobs/CopyMoveRun.h"
#include "files/names/NameLine.h"
#include "shell/main/frmMDIParent.h"
#include "shell/tabs/TabStates.h"
#include "shell/tabs/frmMDIChild.h"
#include "text/control/TextSearch.h"
#include "text/insert/InsertTarget.h"

#include <memory>
#include <span>
#include <string_view>

namespace korvane {

/// Replaces the line with the file name in the directory lister.
struct LoneNameLine final : NameLine {
    Text FileName() const override { return name; }
    void SetFileName(TextView text) override { name = text; }
    void SetPattern(TextView) override {}

    Text name = u"Letters to Ann.docx";
};

/// Everything that is needed to make the program's windows.
struct Surroundings {
    explicit Surroundings(App& program) : app(program) {}

    App& app;
    TabStates states;
    frmMDIChild child{app, states};
    TabContext tab = child.Context();
    CopyRequest copy;
    CellExchange cell;
    FileFacts facts;
    LoneNameLine nameLine;
    CopyMoveRun copyMove;
    frmMDIParent main{app, Text()};
    Form textOwner{app.Forms(), "textOwner", u""};
    TextControl text{textOwner, "text"};
    TextSearch search;
    ControlTarget insertTarget{text};
};

/// A window's name and the function that makes it.
struct Window {
    std::string_view name;
    std::unique_ptr<Form> (*make)(Surroundings&);
};

/// Every window of the program.
std::span<const Window> AllWindows();

} // namespace korvane
