#include "text/files/DocumentFiles.h"

#include "document/docx/Docx.h"
#include "document/html/Html.h"
#include "document/model/Reading.h"
#include "document/pdf/Pdf.h"
#include "document/plain/Plain.h"
#include "document/rtf/Rtf.h"
#include "document/xlsx/Xlsx.h"
#include "platform/DocumentConverter.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <utility>

namespace korvane {

namespace {

using Reader = doc::ReadResult (*)(std::string_view bytes, const CodePage& page);
using Writer = std::string (*)(const doc::Document& document, const CodePage& page);

doc::ReadResult FromPlain(std::string_view bytes, const CodePage& page) {
    return doc::ReadPlain(bytes, page);
}
std::string ToPlain(const doc::Document& document, const CodePage& page) {
    return doc::WritePlain(document, page);
}
doc::ReadResult FromRtf(std::string_view bytes, const CodePage&) {
    return doc::ReadRtf(bytes);
}
std::string ToRtf(const doc::Document& document, const CodePage&) {
    return doc::WriteRtf(document);
}
doc::ReadResult FromHtml(std::string_view bytes, const CodePage&) {
    return doc::ReadHtml(bytes);
}
std::string ToHtml(const doc::Document& document, const CodePage&) {
    return doc::WriteHtml(document);
}
doc::ReadResult FromDocx(std::string_view bytes, const CodePage&) {
    return doc::ReadDocx(bytes);
}
std::string ToDocx(const doc::Document& document, const CodePage&) {
    return doc::WriteDocx(document);
}
doc::ReadResult FromPdfXml(std::string_view bytes, const CodePage&) {
    return doc::ReadPdfXml(bytes);
}
doc::ReadResult FromXlsx(std::string_view bytes, const CodePage&) {
    return doc::ReadXlsx(bytes);
}

/// How a format is read and written. Where it needs a conversion, the reader gets its outcome, and the
/// writer's text is converted.
struct Format {
    int number;
    Reader read;
    Writer write;
    std::optional<Conversion> beforeReading{};
    std::optional<Conversion> afterWriting{};
};

constexpr Format kFormats[] = {
    {TextFormat::Plain, FromPlain, ToPlain},
    {TextFormat::Html, FromHtml, ToHtml},
    {TextFormat::Rtf, FromRtf, ToRtf},
    {TextFormat::Doc, FromRtf, ToRtf, Conversion::DocToRtf, Conversion::RtfToDoc},
    {TextFormat::Xml, FromPlain, ToPlain},
    {TextFormat::Css, FromPlain, ToPlain},
    {TextFormat::Pdf, FromPdfXml, nullptr, Conversion::PdfToXml},
    {TextFormat::Docx, FromDocx, ToDocx},
    {TextFormat::Xlsx, FromXlsx, nullptr},
};

const Format* FormatOf(int number) {
    const auto found = std::ranges::find(kFormats, number, &Format::number);
    return found == std::end(kFormats) ? nullptr : &*found;
}

std::optional<doc::ReadResult> ReadAs(const Format& format, std::string_view bytes, const CodePage& page) {
    doc::ReadResult read = format.read(bytes, page);
    if (read.trouble == doc::Trouble::WrongFormat) return std::nullopt;
    return read;
}

/// Many files called DOC are RTF.
bool IsRtf(std::string_view bytes) {
    return bytes.starts_with("{\\rtf");
}

} // namespace

DocumentFiles::DocumentFiles(FileSystem& files, CodePage page, DocumentConverter* converter)
    : files_(files), page_(page), converter_(converter) {}

std::optional<std::string> DocumentFiles::Convert(Conversion conversion, std::string_view bytes) {
    return converter_ == nullptr ? std::nullopt : converter_->Convert(conversion, bytes);
}

std::optional<doc::ReadResult> DocumentFiles::Load(TextView path, int number) {
    const Format* const format = FormatOf(number);
    const auto bytes = files_.ReadAll(path);
    if (format == nullptr || !bytes) return std::nullopt;
    if (!format->beforeReading || IsRtf(bytes->View())) return ReadAs(*format, bytes->View(), page_);
    const auto converted = Convert(*format->beforeReading, bytes->View());
    return converted ? ReadAs(*format, *converted, page_) : std::nullopt;
}

TextSaving DocumentFiles::Save(TextView path, int number, const doc::Document& document) {
    const Format* const format = FormatOf(number);
    if (format == nullptr || format->write == nullptr) return TextSaving::NotMade;
    std::optional<std::string> bytes = format->write(document, page_);
    if (format->afterWriting) bytes = Convert(*format->afterWriting, *bytes);
    if (!bytes) return TextSaving::NotMade;
    return files_.WriteWhole(path, *bytes) ? TextSaving::Saved : TextSaving::NotWritten;
}

Text DocumentFiles::Needed(int number, FileUse use) const {
    const Format* const format = FormatOf(number);
    if (format == nullptr || converter_ == nullptr) return {};
    const auto& conversion = use == FileUse::Reading ? format->beforeReading : format->afterWriting;
    return conversion ? FromAscii(converter_->Missing(*conversion)) : Text();
}

std::optional<doc::ReadResult> DocumentFiles::Read(std::string_view bytes, int number) {
    const Format* const format = FormatOf(number);
    if (format == nullptr || format->beforeReading) return std::nullopt;
    return ReadAs(*format, bytes, page_);
}

std::optional<std::string> DocumentFiles::Written(const doc::Document& document, int number) {
    const Format* const format = FormatOf(number);
    if (format == nullptr || format->write == nullptr || format->afterWriting) return std::nullopt;
    return format->write(document, page_);
}

} // namespace korvane
