#pragma once

#include "platform/UserLocale.h"

#include <QLocale>

namespace korvane {

/// Dates as the user's desktop writes them.
class QtUserLocale final : public UserLocale {
public:
    explicit QtUserLocale(const QLocale& locale = QLocale::system());

    Text GeneralDate(const DateTime& when) const override;
    const DateNames& Names() const override { return names_; }

private:
    QLocale locale_;
    DateNames names_;
};

} // namespace korvane
