#include "shell/settings/WordRules.h"

#include "context/App.h"
#include "context/exchange/WordEnds.h"

namespace korvane {

namespace {

constexpr TextView kDelimiters = u"'\",.;:#/()[]{} \t\f\n\r";

} // namespace

void SetWordRules(App& app) {
    WordEnds& ends = app.Exchange<WordEnds>();
    app.Settings.WordDelimiters = Text(kDelimiters);
    ends.DelimiterTable.fill(false);
    for (const char16_t delimiter : kDelimiters) {
        const auto code = app.Page().Encode(delimiter);
        if (code) ends.DelimiterTable[*code] = true;
    }
}

} // namespace korvane
