#include "shell/commands/HelpSections.h"

#include "common/text/CodePage.h"
#include "common/text/Lines.h"
#include "common/text/RtfText.h"

namespace korvane {

namespace {

/// A line of the text as it is shown: the cells of a table's row have dashes between them.
Text ShownLine(Text line) {
    const bool ofTable = line.ends_with(u'\t');
    if (ofTable) line.pop_back();
    Text shown;
    for (const char16_t character : line)
        shown += character == u'\t' ? Text(ofTable ? u"  \u2013  " : u" ") : Text(1, character);
    return shown;
}

} // namespace

std::vector<HelpSection> HelpSections(std::string_view rtf) {
    const std::string plain = RtfText(rtf);
    LineReader lines(plain, LineEnds::CrLfOrCrOrLf);
    std::vector<HelpSection> sections;
    for (std::string_view line; lines.Next(line);) {
        const bool heading = line.starts_with(kRtfHeading);
        if (heading) line.remove_prefix(kRtfHeading.size());
        const Text text = CodePage::Windows1252().ToText(line);
        if (heading) {
            sections.push_back({text, {}});
        } else if (!sections.empty() && !text.empty()) {
            sections.back().text += ShownLine(text) + Text(kCrLf) + Text(kCrLf);
        }
    }
    return sections;
}

} // namespace korvane
