#pragma once

#include "platform/UserLocale.h"

#include <QLocale>

namespace korvane {

/// Writes dates as the user's desktop does.
class QtUserLocale final : public UserLocale {
public:
    explicit QtUserLocale(const QLocale& locale = QLocale::system());

    Text GeneralDate(const DateTime& when) const override;
    const DateNames& Names() const override { return names_; }
    int FirstWeekday() const override;

private:
    QLocale locale_;
    DateNames names_;
};

} // namespace korvane
