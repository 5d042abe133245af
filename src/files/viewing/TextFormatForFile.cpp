#include "files/viewing/TextFormatForFile.h"

#include "common/path/PathStyle.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

struct NamedFormat {
    TextView end;
    TextFormat format;
};

constexpr auto kFormats = std::to_array<NamedFormat>({
    {u"RTF", TextFormat::Rtf},
    {u"HTM", TextFormat::Html},
    {u"HTML", TextFormat::Html},
    {u".XHTML", TextFormat::Html},
    {u"DOC", TextFormat::Doc},
    {u"XML", TextFormat::Xml},
    {u"CSS", TextFormat::Css},
    {u"PDF", TextFormat::Pdf},
    {u"DOCX", TextFormat::Docx},
    {u"XLSX", TextFormat::Xlsx},
});

constexpr std::array<TextView, 3> kPlainEnds{u"TXT", u"LST", u"ASC"};

} // namespace

TextFormat TextFormatForFile(TextView path, OtherFiles others) {
    const auto endsIn = [path](TextView end) { return HasExtension(path, end); };
    const auto* named = std::ranges::find_if(kFormats, endsIn, &NamedFormat::end);
    if (named != kFormats.end()) return named->format;
    const bool plain = others == OtherFiles::Plain || std::ranges::any_of(kPlainEnds, endsIn);
    return plain ? TextFormat::Plain : TextFormat::None;
}

} // namespace korvane
