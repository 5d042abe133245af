#include "shell/commands/frmHelp.h"

#include "context/App.h"
#include "context/StandardMessages.h"
#include "context/exchange/StateFiles.h"
#include "platform/FileSystem.h"

#include <utility>

namespace korvane {

frmHelp::frmHelp(App& app, std::vector<HelpSection> sections)
    : Form(app.Forms(), "frmHelp", u"Help text"), sections_(std::move(sections)) {
    txtHelp.Locked = true;
    lstSections.Click = [this] { ShowSection(); };
    cmdClose.Click = [this] { Close(); };
    cmdClose.Cancel = true;
}

void frmHelp::Load() {
    for (const HelpSection& section : sections_)
        lstSections.AddItem(section.heading);
    lstSections.SetListIndex(0);
    lstSections.SetFocus();
}

void frmHelp::ShowSection() {
    const auto index = static_cast<std::size_t>(lstSections.ListIndex());
    if (index < sections_.size()) txtHelp.Text = sections_[index].text;
}

void ShowHelp(App& app) {
    Text path = app.Exchange<StateFiles>().HelpFilePath;
    const auto bytes = app.Files().ReadAll(path);
    if (!bytes) return ShowCannotLocate(app, path);
    frmHelp(app, HelpSections(bytes->View())).ShowModal();
}

} // namespace korvane
