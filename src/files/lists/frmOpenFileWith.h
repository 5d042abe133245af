#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/lists/ListView.h"
#include "files/lists/OpenWithList.h"

#include <cstdint>

namespace korvane {

class App;

/// The user's own list of programs, for opening the file of `OpenWithRequest`. Modal; `DialogResult` says
/// what is then in `ViewWithProgram`.
class frmOpenFileWith : public Form {
public:
    explicit frmOpenFileWith(App& app);

    static constexpr std::int16_t kProgramFound = 1;
    static constexpr std::int16_t kCommandMade = 2;

    Menu OfficeMenu1;
    CommandButton cmdInternalViewer{*this, "cmdInternalViewer", u"", u"Use internal viewer for file"};
    CommandButton cmdToggle{*this, "cmdToggle", u"",
                            u"Toggle \"Program Files\" and \"Program Files (x86)\" as source"};
    CommandButton cmdEditList{*this, "cmdEditList", u"", u"Edit list as text file"};
    CommandButton cmdLoadFile{*this, "cmdLoadFile", u"", u"Load current file with selected program"};
    CommandButton cmdGetList{*this, "cmdGetList", u"", u"Get list on disk"};
    CommandButton cmdExit{*this, "cmdExit", u"", u"Close this window"};
    CommandButton cmdDelete{*this, "cmdDelete", u"", u"Delete item from list"};
    CommandButton cmdAddProgram{*this, "cmdAddProgram", u"", u"Add program to list"};
    CommandButton Image1{*this, "Image1", u"", u"Move current item down in list"};
    CommandButton Image2{*this, "Image2", u"", u"Move current item up in list"};
    Label Label4{*this, "Label4", u"Ctrl-U; Ctrl-D"};
    ListView ListView1;
    Label Label1{*this, "Label1", u"File to load"};
    Label lblFiletoLoad{*this, "lblFiletoLoad"};
    Label Label3{*this, "Label3", u"Directory"};
    Label lblDirectory{*this, "lblDirectory"};

    /// A row has the second icon when its program isn't in its folder.
    static constexpr TextView kFoundIcon = u"programFound";
    static constexpr TextView kMissingIcon = u"programMissing";

    void Load() override;
    void Resize() override;
    void Unload() override;

private:
    struct Tables;

    void Wire();
    void LayOutColumns();
    void ShowFile();
    void ReadList();
    void ReadOpenFilesWithList();
    void WriteList();
    void Propose();

    ListedProgram ProgramAt(int row) const;
    std::vector<ListedProgram> Programs() const;
    void AddRow(const ListedProgram& program);
    void SetTexts(int row, const ListedProgram& program);
    TextView IconOf(const ListedProgram& program) const;
    void SwapCurrentWith(int neighbour);
    void CloseWith(std::int16_t outcome, const Text& program);

    void LoadFile();
    void Toggle();
    void AddProgram();
    void DeleteItems();
    void MoveDown();
    void MoveUp();
    void GetList();
    void EditList();
    void UseInternalViewer();

    App& app_;
    /// 1 after a change of the rows.
    std::int16_t ListChanged = 0;
    /// What becomes the `DialogResult`.
    std::int16_t outcome_ = 0;
    /// The list's file is there, but nothing could be read of it.
    bool unreadable_ = false;
};

} // namespace korvane
