#include "platform/qt/services/QtTextOrder.h"

#include "platform/qt/base/Convert.h"

#include <QCollator>

namespace korvane {

namespace {

/// Without a language, texts would be compared by their character codes.
QLocale WithLanguage(const QLocale& locale) {
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

} // namespace

QtTextOrder::QtTextOrder(const QLocale& locale) : locale_(WithLanguage(locale)) {}

std::vector<int> QtTextOrder::RanksOf(const std::vector<Text>& texts) const {
    QCollator collator(locale_);
    collator.setNumericMode(true);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(texts.size());
    for (const Text& text : texts)
        keys.push_back(collator.sortKey(ToQString(text)));
    return RanksByKeys(keys);
}

} // namespace korvane
