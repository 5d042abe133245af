#include "text/commands/TextFileTypes.h"

#include "common/path/PathStyle.h"
#include "controls/text/TextControl.h"

#include <algorithm>
#include <span>

namespace korvane {

namespace {

struct Ending {
    TextView text;
    int format;
};

// They are tested in this order.
constexpr Ending kLoaded[] = {
    {u"RTF", TextFormat::Rtf},     {u"HTM", TextFormat::Html}, {u"HTML", TextFormat::Html},
    {u".XHTML", TextFormat::Html}, {u"DOC", TextFormat::Doc},  {u"XML", TextFormat::Xml},
    {u"CSS", TextFormat::Css},     {u"PDF", TextFormat::Pdf},  {u"DOCX", TextFormat::Docx},
    {u"XLSX", TextFormat::Xlsx},
};
constexpr Ending kPlain[] = {
    {u"TXT", TextFormat::Plain}, {u"LST", TextFormat::Plain}, {u"ASC", TextFormat::Plain}};
constexpr Ending kSaved[] = {
    {u".RTF", TextFormat::Rtf},   {u".HTM", TextFormat::Html}, {u".HTML", TextFormat::Html},
    {u".CGI", TextFormat::Html},  {u".ASP", TextFormat::Html}, {u".DOC", TextFormat::Doc},
    {u".DOCX", TextFormat::Docx},
};

constexpr int kNoText = -1;

int FormatBy(std::span<const Ending> endings, TextView path, int otherwise) {
    const auto found = std::ranges::find_if(
        endings, [path](const Ending& ending) { return HasExtension(path, ending.text); });
    return found == endings.end() ? otherwise : found->format;
}

bool HasPageSizes(int format) {
    return format == TextFormat::Rtf || format == TextFormat::Html;
}

} // namespace

int FileTypeForLoad(TextView path, Strictness strictness) {
    const int plain = strictness == Strictness::AnyName ? TextFormat::Plain : FormatBy(kPlain, path, kNoText);
    return FormatBy(kLoaded, path, plain);
}

int FileTypeForSave(TextView path) {
    return FormatBy(kSaved, path, TextFormat::Plain);
}

void SetLoadSaveAttributes(TextControl& control, int format) {
    if (format == TextFormat::Html || format == TextFormat::Docx) {
        control.SetLoadSaveAttribute(37, 1);
        control.ImageSaveMode = 1;
    }
    control.SetLoadSaveAttribute(38, 1);
    control.SetLoadSaveAttribute(1, 1);
    if (format == TextFormat::Doc || format == TextFormat::Docx) {
        control.SetLoadSaveAttribute(15, 1);
        control.SetLoadSaveAttribute(17, u"COMMENT");
    }
}

bool SaveByName(TextControl& control, TextView path) {
    const int format = FileTypeForSave(path);
    if (format != TextFormat::Plain) SetLoadSaveAttributes(control, format);
    for (int size = 0; HasPageSizes(format) && size < static_cast<int>(doc::Page::kSizes); ++size)
        control.SetLoadSaveAttribute(size, control.PageSize(static_cast<doc::Page::Size>(size)));
    return control.Save(path, format);
}

} // namespace korvane
