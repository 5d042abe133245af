#pragma once

#include "document/model/Document.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace korvane::doc::docx {

/// What the parts of a DOCX file begin with.
inline constexpr std::string_view kHead = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
/// The name space of the words of a text.
inline constexpr std::string_view kMain =
    "xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\"";
/// The beginning of the types of relations.
inline constexpr std::string_view kOffice =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

inline constexpr std::int32_t kTwipsPerPoint = 20;

// Each adds a piece of XML.

void PutNumber(std::string& out, std::int64_t number);
/// ` name="number"`
void PutAttribute(std::string& out, std::string_view name, std::int64_t number);
/// An element with a number as its value.
void PutValue(std::string& out, std::string_view element, std::int64_t number);
void PutColour(std::string& out, Colour colour);
void PutShading(std::string& out, Colour colour);
/// A line of a frame or a cell. The lengths are in twips.
void PutLine(std::string& out, std::string_view element, std::string_view kind, std::int32_t width,
             std::int32_t distance);
void PutFont(std::string& out, TextView font);

} // namespace korvane::doc::docx
