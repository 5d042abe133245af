#include "text/insert/frmDateType.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/InsertChoices.h"
#include "context/ports/MainWindow.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "platform/Clipboard.h"
#include "platform/Clock.h"

#include <algorithm>
#include <span>

namespace korvane {

namespace {

constexpr StoredCorner kPlace{&Settings::DateTypeLeft, &Settings::DateTypeTop};

constexpr TextView kLongDate = u"dddd, d mmmm yyyy";
constexpr TextView kDates[] = {kLongDate,     u"ddd, d mmm yyyy", u"d mmmm yyyy", u"mm/dd/yy",
                               u"mm/dd/yyyy", u"dd.mm.yy",        u"dd.mm.yyyy"};
constexpr TextView kTimes[] = {u"hh:mm:ss AMPM", u"hh:mm AMPM", u"hh:mm:ss", u"hh:mm"};
constexpr TextView kMonth = u"mmmm yyyy";

constexpr int kFirstMonth = 1;
constexpr int kLastMonth = 12;
// The years that dates are written with, and how many of them the list has on each side of this one.
constexpr int kFirstYear = 1;
constexpr int kLastYear = 9999;
constexpr int kYearsAround = 10;

void FillList(ListBox& list, std::span<const TextView> formats, const DateTime& now, const DateNames& names,
              int index) {
    list.Clear();
    for (const TextView format : formats)
        list.AddItem(FormatDate(now, format, names));
    list.SetListIndex(std::clamp(index, 0, list.ListCount() - 1));
}

} // namespace

struct frmDateType::Tables {
    using Window = frmDateType;
    static constexpr WindowKey<Window> kCalendarKeys[] = {
        {"PageUp", &Window::PreviousMonth},
        {"PageDown", &Window::NextMonth},
    };
};

frmDateType::frmDateType(App& app) : Form(app.Forms(), "frmDateType", u"Date and time"), app_(app) {
    txtLinetoClip.Locked = true;
    WireLists();
    WireButtons();
}

void frmDateType::WireLists() {
    InsertChoices& choices = app_.Exchange<InsertChoices>();
    lstDate.Click = [this, &choices] {
        if (lstDate.ListIndex() >= 0)
            choices.DateFormatIndex = static_cast<std::int16_t>(lstDate.ListIndex());
        BuildLine(kind_);
    };
    lstTime.Click = [this, &choices] {
        if (lstTime.ListIndex() >= 0)
            choices.TimeFormatIndex = static_cast<std::int16_t>(lstTime.ListIndex());
        BuildLine(kind_);
    };
    cmbMonth.Click = [this] {
        month_.month = cmbMonth.ListIndex() + 1;
        ShowMonths();
    };
    cmbYear.Click = [this] {
        month_.year = years_[static_cast<std::size_t>(cmbYear.ListIndex())];
        ShowMonths();
    };
    for (Calendar* calendar : {&stCalendar1, &stCalendar2})
        calendar->KeyDown = KeysOf(*this, Tables::kCalendarKeys);
}

void frmDateType::WireButtons() {
    cmdDate.Click = [this] { BuildLine(Kind::Date); };
    cmdTime.Click = [this] { BuildLine(Kind::Time); };
    cmdDateTime.Click = [this] { BuildLine(Kind::DateAndTime); };
    cmdClip.Click = [this] { cmdClip_Click(); };
    cmdAccept.Click = [this] { cmdAccept_Click(); };
    cmdAccept.Default = true;
    cmdExit.Click = [this] { cmdExit_Click(); };
    cmdExit.Cancel = true;
    cmdPreviousMonth.Click = [this] { PreviousMonth(); };
    cmdNextMonth.Click = [this] { NextMonth(); };
    cmdClock.Click = [this] { cmdClock_Click(); };
}

void frmDateType::Load() {
    now_ = app_.Clock().Now();
    month_ = DateTime{now_.year, now_.month, 1};
    lblToday.Caption = u"Today: " + FormatDate(now_, kLongDate, app_.Locale().Names());
    FillLists();
    FillMonthsAndYears();
    ShowMonths();
    BuildLine(Kind::Date);
    lstDate.SetFocus();
    RestoreCorner(app_, *this, kPlace);
}

void frmDateType::Unload() {
    StoreCorner(app_, *this, kPlace);
}

void frmDateType::FillLists() {
    const InsertChoices& choices = app_.Exchange<InsertChoices>();
    const DateNames& names = app_.Locale().Names();
    FillList(lstDate, kDates, now_, names, choices.DateFormatIndex);
    FillList(lstTime, kTimes, now_, names, choices.TimeFormatIndex);
}

void frmDateType::FillMonthsAndYears() {
    cmbMonth.Clear();
    for (const Text& month : app_.Locale().Names().months)
        cmbMonth.AddItem(month);
    cmbYear.Clear();
    years_.clear();
    const int last = std::min(now_.year + kYearsAround, kLastYear);
    for (int year = std::max(now_.year - kYearsAround, kFirstYear); year <= last; ++year) {
        years_.push_back(year);
        cmbYear.AddItem(NumberText(year));
    }
}

void frmDateType::ShowMonths() {
    const Calendar::Ways ways{app_.Locale().Names(), app_.Locale().FirstWeekday()};
    stCalendar1.ShowMonth(month_, now_, ways);
    lblMonthOne.Caption = FormatDate(month_, kMonth, ways.names);
    const bool lastOfYear = month_.month == kLastMonth;
    const DateTime next{lastOfYear ? month_.year + 1 : month_.year,
                        lastOfYear ? kFirstMonth : month_.month + 1, 1};
    const bool exists = next.year <= kLastYear;
    if (exists) stCalendar2.ShowMonth(next, now_, ways);
    if (!exists) stCalendar2.ShowNothing();
    lblMonthTwo.Caption = exists ? FormatDate(next, kMonth, ways.names) : Text();
    cmbMonth.SetListIndex(month_.month - 1);
    cmbYear.SetListIndex(static_cast<int>(std::ranges::find(years_, month_.year) - years_.begin()));
}

void frmDateType::BuildLine(Kind kind) {
    kind_ = kind;
    const Text date = lstDate.List(lstDate.ListIndex());
    const Text time = lstTime.List(lstTime.ListIndex());
    Text& line = app_.Exchange<InsertChoices>().DateResult;
    line = kind == Kind::Date ? date : kind == Kind::Time ? time : date + u"; " + time;
    txtLinetoClip.Text = line;
}

void frmDateType::PreviousMonth() {
    if (month_.month == kFirstMonth) return;
    --month_.month;
    ShowMonths();
}

void frmDateType::NextMonth() {
    if (month_.month == kLastMonth) return;
    ++month_.month;
    ShowMonths();
}

void frmDateType::cmdClip_Click() {
    app_.Clipboard().SetText(txtLinetoClip.Text);
    Inform(app_, u"Text line deposited in Windows clipboard.");
}

void frmDateType::cmdAccept_Click() {
    app_.DialogResult = 1;
    Close();
}

void frmDateType::cmdExit_Click() {
    app_.DialogResult = 0;
    Close();
}

void frmDateType::cmdClock_Click() {
    if (auto* main = app_.Port<MainWindow>()) main->RunCommand(CommandName::mnuMisc_Clock);
}

} // namespace korvane
