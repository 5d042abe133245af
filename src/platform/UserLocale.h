#pragma once

#include "common/number/DateTime.h"

namespace korvane {

/// How dates are written for the user. This one is the same on every system; a desktop knows the user's own.
class UserLocale {
public:
    virtual ~UserLocale() = default;
    /// Date and time in the form in which the system shows them.
    virtual Text GeneralDate(const DateTime& when) const { return korvane::GeneralDate(when); }
    /// The words of dates.
    virtual const DateNames& Names() const { return EnglishDateNames(); }
    /// The day with which a week begins: 0 for Sunday to 6 for Saturday.
    virtual int FirstWeekday() const { return 0; }
};

} // namespace korvane
