#include "shell/settings/WordRules.h"

#include "common/text/Names.h"
#include "context/App.h"

namespace korvane {

namespace {

constexpr TextView kDelimiters = u"'\",.;:#/()[]{} \t\f\n\r";

} // namespace

void SetWordRules(App& app) {
    app.Settings.WordDelimiters = Text(kDelimiters);
    app.TitlePunctuation = Text(kTitlePunctuation);
    app.DelimiterTable.fill(false);
    for (const char16_t delimiter : kDelimiters) {
        const auto code = app.Page().Encode(delimiter);
        if (code) app.DelimiterTable[*code] = true;
    }
}

} // namespace korvane
