#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/lists/ListBox.h"
#include "table/TabContext.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>

namespace korvane {

/// Which columns go into a copy. A column after `MaxColumns` has no entry and is left out.
class ColumnsIncluded {
public:
    bool operator[](Col col) const { return Holds(col) && included_[Index(col)]; }
    void Set(Col col, bool included) {
        if (Holds(col)) included_[Index(col)] = included;
    }

private:
    static bool Holds(Col col) { return col >= Col{1} && col <= MaxColumns; }
    static std::size_t Index(Col col) { return static_cast<std::size_t>(col.Number() - 1); }

    std::bitset<24> included_;
};

enum class CopyDestination : std::int16_t { TextWindow = 1, Clipboard = 2 };

/// A copy that is about to be made: what the window shows about it, and what the user chooses.
struct CopyRequest {
    CopyDestination destination = CopyDestination::Clipboard;
    int rowsToCopy = 0;
    ColumnsIncluded ColumnIncluded;
};

/// Asks which columns a copy takes and what is put between them. Modal; `DialogResult` is 1 when the copy may
/// be made. The chosen delimiter is in the settings then.
class frmDelimiterType : public Form {
public:
    /// Tab and request outlive the window.
    frmDelimiterType(const TabContext& tab, CopyRequest& request);

    std::array<OptionButton, 5> optDelimiter{{{*this, "optDelimiter0", "optDelimiter", u"Tabulator stop"},
                                              {*this, "optDelimiter1", "optDelimiter", u"A comma"},
                                              {*this, "optDelimiter2", "optDelimiter", u"A semi-colon"},
                                              {*this, "optDelimiter3", "optDelimiter", u"A space character"},
                                              {*this, "optDelimiter4", "optDelimiter", u"No delimiter"}}};
    /// This is kept as long as the program runs, and has no effect on what is copied. Kept for
    /// compatibility: line-break-box-without-effect.
    CheckBox chkBreakAfterFieldThree{*this, "chkBreakAfterFieldThree",
                                     u"Add line break from field 3 onwards"};
    Label lblDestination{*this, "lblDestination"};
    Label lblCheckedRows{*this, "lblCheckedRows"};
    /// The columns by their captions, with check marks.
    ListBox lstColumns{*this, "lstColumns"};
    CommandButton cmdProceed{*this, "cmdProceed", u"&Proceed with copying"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;

private:
    void ListColumns();
    void ShowDelimiter();
    void TakeDelimiter();
    void cmdProceed_Click();

    TabContext tab_;
    CopyRequest& request_;
};

} // namespace korvane
