#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

enum class Conversion : std::uint8_t { DocToRtf, RtfToDoc, PdfToXml };

/// Other programs that know formats of documents which this one doesn't.
class DocumentConverter {
public:
    virtual ~DocumentConverter() = default;
    /// Nothing when no program can do it, or when it failed.
    virtual std::optional<std::string> Convert(Conversion conversion, std::string_view bytes) = 0;
    /// The name of the program that has to be installed for it; empty if one is there.
    virtual std::string_view Missing(Conversion conversion) const = 0;
};

} // namespace korvane
