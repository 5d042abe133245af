#pragma once

#include "context/App.h"
#include "dbops/windows/frmDelimiterType.h"
#include "dbops/windows/frmViewCell.h"
#include "dialogs/frmTxtInfo.h"
#include "files/names/NameLine.h"
#include "shell/main/frmMDIParent.h"
#include "shell/tabs/TabStates.h"
#include "shell/tabs/frmMDIChild.h"

#include <memory>
#include <span>
#include <string_view>

namespace korvane {

/// The lister's line, with no lister around it.
struct LoneNameLine final : NameLine {
    Text FileName() const override { return name; }
    void SetFileName(TextView text) override { name = text; }
    void SetPattern(TextView) override {}

    Text name = u"Letters to Ann.docx";
};

/// What the program's windows are made from.
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
    frmMDIParent main{app, Text()};
};

/// A window's name and how it is made.
struct Window {
    std::string_view name;
    std::unique_ptr<Form> (*make)(Surroundings&);
};

/// Every window of the program.
std::span<const Window> AllWindows();

} // namespace korvane
