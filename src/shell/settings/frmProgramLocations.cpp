#include "shell/settings/frmProgramLocations.h"

#include "context/App.h"
#include "context/ports/SystemFileDialog.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"

namespace korvane {

struct frmProgramLocations::Program {
    Text Settings::*location;
    TextBox frmProgramLocations::*shown;
    CommandButton frmProgramLocations::*locate;
    TextView title;
    TextView file;
};

const frmProgramLocations::Program frmProgramLocations::kPrograms[] = {
    {&Settings::WordPath, &frmProgramLocations::prgText1, &frmProgramLocations::cmdWord, u"Locate MS Word",
     u"WINWORD.EXE"},
    {&Settings::ExcelPath, &frmProgramLocations::prgText2, &frmProgramLocations::cmdExcel, u"Locate MS Excel",
     u"EXCEL.EXE"},
    {&Settings::PowerPointPath, &frmProgramLocations::prgText3, &frmProgramLocations::cmdPowerPoint,
     u"Locate MS PowerPoint", u"POWERPNT.EXE"},
    {&Settings::PublisherPath, &frmProgramLocations::prgText4, &frmProgramLocations::cmdPublisher,
     u"Locate MS Publisher", u"MSPUB.EXE"},
    {&Settings::AccessPath, &frmProgramLocations::prgText5, &frmProgramLocations::cmdAccess,
     u"Locate MS Access", u"MSACCESS.EXE"},
};

frmProgramLocations::frmProgramLocations(App& app)
    : Form(app.Forms(), "frmProgramLocations", u"Locations of MS Office programs"), app_(app) {
    for (const Program& program : kPrograms) {
        (this->*program.shown).Locked = true;
        (this->*program.locate).Click = [this, &program] { Locate(program); };
    }
    cmdSameForAll.Click = [this] { cmdSameForAll_Click(); };
    cmdClose.Click = [this] { Close(); };
    cmdClose.Cancel = true;
}

void frmProgramLocations::Load() {
    for (const Program& program : kPrograms)
        (this->*program.shown).Text = app_.Settings.*program.location;
}

void frmProgramLocations::Locate(const Program& program) {
    auto* systemFileDialog = app_.Port<SystemFileDialog>();
    if (systemFileDialog == nullptr) return;
    const auto file = systemFileDialog->Choose(
        {.filter = u"Programs (*.exe)|*.exe;All files (*.*)|*.*", .title = Text(program.title)});
    if (!file || file->empty()) return;
    app_.Settings.*program.location = *file;
    (this->*program.shown).Text = *file;
}

void frmProgramLocations::cmdSameForAll_Click() {
    const Text word = app_.Settings.WordPath;
    if (word.empty() || !app_.Files().FileExists(word)) {
        app_.Messages().Show({u"Location for MS Word invalid or empty."});
        return;
    }
    const PathStyle style = app_.Files().Style();
    Text folder(style.FolderPart(word));
    // A bare name is looked for along the system's path, and so are those beside it.
    if (!folder.empty()) style.AddBackslash(folder);
    for (const Program& program : kPrograms) {
        if (program.location == &Settings::WordPath) continue;
        app_.Settings.*program.location = folder + Text(program.file);
    }
    Load();
}

} // namespace korvane
