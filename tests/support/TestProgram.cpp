#include "support/TestProgram.h"

#include "common/text/CodePage.h"
#include "context/exchange/StartState.h"
#include "grid/Grid.h"
#include "shell/commands/Commands.h"
#include "table/frmDesignTable.h"

#include <gtest/gtest.h>

namespace korvane {

void TestProgram::AddSettings(const Settings& settings) {
    files.AddFile(files.Style().JoinPath(files.ProgramDir(), u"Korvane.ini"), SettingsBytes(settings));
}

void TestProgram::AddTable(const Text& path, const TestRow& names) {
    files.AddFile(path, NameTable(path, names));
}

void TestProgram::Start(const Text& commandLine) {
    main_ = std::make_unique<frmMDIParent>(app, commandLine);
    main_->EnsureLoaded();
    if (app.Exchange<StartState>().SecondInstance == 1) return;
    user.On<frmMDIParent>([](frmMDIParent& main) { main.Activate(); });
    main_->Show();
}

void TestProgram::StartWith(const Settings& settings, const Text& commandLine) {
    AddSettings(settings);
    Start(commandLine);
}

void TestProgram::OpenNewTab() {
    CancelDesign();
    Choose("mnuEdit_DesignDb");
}

void TestProgram::CancelDesign() {
    user.On<frmDesignTable>([](frmDesignTable& design) { design.cmdCancel.Press(); });
}

void TestProgram::Open(const Text& path) {
    user.ChooseFile(path);
    Choose("mnuFile_Open");
}

bool TestProgram::PressKey(int code, int mask) {
    KeyEvent key{code, mask};
    if (ChooseByKey(key)) return true;
    if (frmMDIChild* tab = AllTabs().Active()) tab->iGrid1.KeyDown(key);
    return key.consumed;
}

bool TestProgram::PressSideBarKey(int code, int mask) {
    KeyEvent key{code, mask};
    if (ChooseByKey(key)) return true;
    main_->iGridListBar.KeyDown(key);
    return key.consumed;
}

frmMDIChild& TestProgram::Tab(int slot) {
    frmMDIChild* document = AllTabs().Document(slot);
    if (document == nullptr) throw std::out_of_range("no tab in slot " + std::to_string(slot));
    return *document;
}

std::vector<Text> TestProgram::Captions() const {
    std::vector<Text> captions;
    for (const Form* child : main_->MDITabs1.Children())
        captions.push_back(child->Caption);
    return captions;
}

bool TestProgram::ChooseByKey(const KeyEvent& key) {
    for (const MenuEntry& entry : main_->OfficeMenu1.Entries()) {
        if (!entry.shortcut.Matches(key)) continue;
        Choose(entry.name);
        return true;
    }
    return false;
}

std::string SettingsBytes(const Settings& settings) {
    const CodePage page = CodePage::Windows1252();
    std::string bytes;
    for (const SettingLine& line : SettingsTable()) {
        const auto append = [&](const auto& value) {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, Text>) {
                bytes += page.ToBytes(value);
            } else {
                bytes += std::to_string(value);
            }
        };
        std::visit([&](auto member) { append(settings.*member); }, line.read);
        bytes += "\r\n";
    }
    return bytes;
}

} // namespace korvane
