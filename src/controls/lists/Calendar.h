#pragma once

#include "common/number/DateTime.h"
#include "controls/lists/Tiles.h"

namespace korvane {

/// The days of a month, a week in each row.
class Calendar : public Tiles {
public:
    Calendar(Form& owner, std::string_view name) : Tiles(owner, name, 7) {}

    /// How the user writes dates. `firstWeekday` is 0 for Sunday to 6 for Saturday.
    struct Ways {
        const DateNames& names;
        int firstWeekday = 0;
    };
    /// Shows the month of a date. If `today` is in it, that day is marked and becomes the current one.
    void ShowMonth(const DateTime& month, const DateTime& today, const Ways& ways);
    /// Shows a month that no calendar has.
    void ShowNothing();
    /// The current day of the month; 0 while there is none.
    int Day() const { return Current() < 0 ? 0 : Current() - first_ + 1; }

protected:
    /// The user only comes to days of the month.
    int Reachable(int tile) const override;

private:
    /// The tile of the month's first day.
    int first_ = 0;
    int days_ = 0;
};

} // namespace korvane
