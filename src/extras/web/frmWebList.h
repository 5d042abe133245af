#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"
#include "controls/lists/ListView.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace korvane {

class App;
struct WebsiteLists;

/// The list of websites, of which one, the checked ones or a saved group are opened in one of three browsers.
/// Not modal.
class frmWebList : public Form {
public:
    /// `owner` is the main window, beside which this one docks; it outlives the window.
    frmWebList(App& app, const Form& owner);

    Menu OfficeMenu1;
    CommandButton cmdCloseWindow{*this, "cmdCloseWindow", u"", u"Exit this level"};
    CommandButton cmdOpenList{*this, "cmdOpenList", u"", u"Open list of websites"};
    CommandButton cmdSaveList{*this, "cmdSaveList", u"", u"Save list to disk"};
    CommandButton cmdInfo{*this, "cmdInfo", u"", u"Info on list"};
    CommandButton cmdAddItem{*this, "cmdAddItem", u"", u"Add item to list"};
    CommandButton cmdDuplicate{*this, "cmdDuplicate", u"", u"Duplicate item in list"};
    CommandButton cmdDelete{*this, "cmdDelete", u"", u"Delete item in list"};
    CommandButton cmdAddToGroup{*this, "cmdAddToGroup", u"", u"Add to group"};
    CommandButton cmdGroupWin{*this, "cmdGroupWin", u"", u"Open group window"};
    CommandButton cmdArrowUp{*this, "cmdArrowUp", u"", u"Move item up in list"};
    CommandButton cmdArrowDown{*this, "cmdArrowDown", u"", u"Move item down in list"};
    CommandButton cmdLoadItem{*this, "cmdLoadItem", u"", u"Load checked item(s) in list"};

    ListView ListView1;

    // The groups, in place of the list while the user works with them.
    Panel frameGroup{*this, "frameGroup"};
    ListBox lstGroup{*this, "lstGroup"};
    CommandButton btnEmptyList{*this, "btnEmptyList", u"&Empty"};
    CommandButton btnCloseGroup{*this, "btnCloseGroup", u"Cl&ose"};

    // The fields of a row or group that is edited.
    Panel Frame1{*this, "Frame1"};
    Label Label1{*this, "Label1", u"Name of website"};
    TextBox txtName{*this, "txtName"};
    Label Label2{*this, "Label2", u"URL of website"};
    TextBox txtSite{*this, "txtSite"};
    CommandButton btnAccept{*this, "btnAccept", u"&Accept"};
    CommandButton btnReject{*this, "btnReject", u"&Reject"};

    Panel Frame2{*this, "Frame2"};
    OptionButton Option1{*this, "Option1", "browser"};
    OptionButton Option2{*this, "Option2", "browser"};
    OptionButton Option3{*this, "Option3", "browser"};
    TextBox prgText1{*this, "prgText1"};
    TextBox prgText2{*this, "prgText2"};
    TextBox prgText3{*this, "prgText3"};
    CommandButton imgSet_1{*this, "imgSet_1"};
    CommandButton imgSet_2{*this, "imgSet_2"};
    CommandButton imgSet_3{*this, "imgSet_3"};
    CommandButton btnLoad{*this, "btnLoad", u"&Load"};
    CommandButton btnCancel{*this, "btnCancel", u"&Cancel"};

    /// 1 when the list has changes that aren't on the disk. A change of a check mark is none (kept for
    /// compatibility: website-checks-are-no-change), and neither is emptying the groups (kept for
    /// compatibility: emptying-groups-is-no-change).
    std::int16_t ListDirty = 0;
    /// 1 when the current row is to be loaded, whatever is checked.
    std::int16_t LoadByEnter = 0;

    void Load() override;
    bool QueryUnload() override;
    void Unload() override;
    void Resize() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;
    /// What is to be loaded, and how many checked websites there are.
    struct Choice {
        Text urls;
        int count = 0;
    };
    struct Browser {
        OptionButton frmWebList::*option;
        TextBox frmWebList::*path;
        CommandButton frmWebList::*pick;
    };
    static const std::array<Browser, 3> kBrowsers;

    void Wire();
    void LayOutColumns();
    void ShowTitle();
    void ShowBrowsers();
    void StoreBrowsers();
    Text ChosenBrowser() const;
    void PickBrowser(std::size_t index);

    void ReadList();
    void ShowLists(const WebsiteLists& lists);
    WebsiteLists ShownLists() const;

    int AddRow(TextView name, TextView url);
    void SetTexts(int row, TextView name, TextView url);
    void AddAtEnd(TextView name, TextView url);
    void MoveTextsDownFrom(int row);
    void SwapCurrentWith(int neighbour);
    /// The checked rows that are websites, in their order.
    std::vector<int> CheckedWebsites() const;
    Text AddressesOf(const std::vector<int>& rows) const;
    Choice Chosen() const;
    /// The groups that the user has selected, in their order.
    std::vector<int> SelectedGroups() const;
    /// Makes the group the current one, and selects it alone.
    void SelectGroup(int index);
    bool InGroups() const { return inGroups_; }
    /// Whether the group window is open, in which a message refuses the command.
    bool RefusedInGroups();

    void LoadItems();
    void LoadCurrent();
    void OpenList();
    void SaveList();
    void ShowInfo();
    void EditItem();
    void AddItem();
    void Duplicate();
    void DeleteItems();
    void DeleteGroups(const std::vector<int>& groups);
    void InsertSeparator();
    void MoveUp();
    void MoveDown();
    void AddToGroup();
    void OpenGroups();
    void CloseGroups();
    void EmptyGroups();
    void SpecifyCustomBrowser();
    void Accept();
    void Reject();
    void ShowFields(bool shown);
    void ShowGroups(bool shown);
    void FocusList();
    void CentreInMainWindow();
    /// Leaves what was opened last: the fields, the groups, the window.
    void Leave();
    void ListView1_KeyDown(KeyEvent& key);

    App& app_;
    const Form& owner_;
    /// Whether the group window is open.
    bool inGroups_ = false;
};

} // namespace korvane
