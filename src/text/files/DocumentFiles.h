#pragma once

#include "common/text/CodePage.h"
#include "controls/text/TextFiles.h"

#include <cstdint>

namespace korvane {

class DocumentConverter;
enum class Conversion : std::uint8_t;
class FileSystem;

/// Reads and writes the formats of texts: those that the program knows itself, and with the help of other
/// programs those that it doesn't.
class DocumentFiles final : public TextFiles {
public:
    /// The disk and the converter outlive the object. Without a converter, the formats that need one can't be
    /// read or written.
    DocumentFiles(FileSystem& files, CodePage page, DocumentConverter* converter);

    std::optional<doc::ReadResult> Load(TextView path, int format) override;
    TextSaving Save(TextView path, int format, const doc::Document& document) override;
    Text Needed(int format, FileUse use) const override;
    std::optional<doc::ReadResult> Read(std::string_view bytes, int format) override;
    std::optional<std::string> Written(const doc::Document& document, int format) override;

private:
    std::optional<std::string> Convert(Conversion conversion, std::string_view bytes);

    FileSystem& files_;
    CodePage page_;
    DocumentConverter* converter_;
};

} // namespace korvane
