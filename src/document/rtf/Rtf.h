#pragma once

#include "document/model/Document.h"
#include "document/model/Pieces.h"
#include "document/model/Reading.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace korvane::doc {

/// Reads an RTF file, or a piece of RTF from the clipboard. Nothing that it refers to is opened.
ReadResult ReadRtf(std::string_view bytes, const Limits& limits = {});

/// Whether the page is written too.
enum class RtfExtent : std::uint8_t { File, Fragment };

std::string WriteRtf(const Document& document, RtfExtent extent = RtfExtent::File);
/// Writes a whole file without ever having all of it in memory.
void WriteRtf(const Document& document, const PieceTaker& take);

} // namespace korvane::doc
