#pragma once

#include "common/text/TextOrder.h"

#include <QLocale>

namespace korvane {

/// The order of the user's language. Accents and case count only where nothing else differs, and numbers
/// inside the texts count by their value.
class QtTextOrder final : public TextOrder {
public:
    explicit QtTextOrder(const QLocale& locale = QLocale::system());

    std::vector<int> RanksOf(const std::vector<Text>& texts) const override;

private:
    QLocale locale_;
};

} // namespace korvane
