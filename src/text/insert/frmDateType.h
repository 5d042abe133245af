#pragma once

#include "common/number/DateTime.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "controls/lists/Calendar.h"
#include "controls/lists/ListBox.h"

#include <cstdint>
#include <vector>

namespace korvane {

class App;

/// Builds a line of today's date, of the time or of both. `DialogResult` is 1 when the user took it. Modal.
class frmDateType : public Form {
public:
    /// The App outlives the window.
    explicit frmDateType(App& app);

    ListBox lstDate{*this, "lstDate"};
    ListBox lstTime{*this, "lstTime"};
    Label lblToday{*this, "lblToday"};
    CommandButton cmdDate{*this, "cmdDate", u"&Date"};
    CommandButton cmdTime{*this, "cmdTime", u"&Time"};
    CommandButton cmdDateTime{*this, "cmdDateTime", u"Date+Ti&me"};
    TextBox txtLinetoClip{*this, "txtLinetoClip"};
    CommandButton cmdClip{*this, "cmdClip", u"&Clip", u"Put this line in Windows clipboard"};
    CommandButton cmdAccept{*this, "cmdAccept", u"&Accept"};
    CommandButton cmdExit{*this, "cmdExit", u"E&xit"};
    CommandButton cmdPreviousMonth{*this, "cmdPreviousMonth", u"<", u"Previous month in this year"};
    CommandButton cmdNextMonth{*this, "cmdNextMonth", u">", u"Next month in this year"};
    ComboBox cmbMonth{*this, "cmbMonth"};
    ComboBox cmbYear{*this, "cmbYear"};
    Label lblMonthOne{*this, "lblMonthOne"};
    Label lblMonthTwo{*this, "lblMonthTwo"};
    Calendar stCalendar1{*this, "stCalendar1"};
    Calendar stCalendar2{*this, "stCalendar2"};
    CommandButton cmdClock{*this, "cmdClock", u"Cloc&k", u"Show clock"};

    void Load() override;
    void Unload() override;

private:
    struct Tables;
    /// What the line is made of.
    enum class Kind : std::int16_t { Date = 0, DateAndTime = 1, Time = 2 };

    void WireLists();
    void WireButtons();
    void FillLists();
    void FillMonthsAndYears();
    void ShowMonths();
    void BuildLine(Kind kind);
    void PreviousMonth();
    void NextMonth();
    void cmdClip_Click();
    void cmdAccept_Click();
    void cmdExit_Click();
    void cmdClock_Click();

    App& app_;
    DateTime now_;
    Kind kind_ = Kind::Date;
    /// The month that the first calendar shows.
    DateTime month_;
    std::vector<int> years_;
};

} // namespace korvane
