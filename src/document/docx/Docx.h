#pragma once

#include "document/model/Document.h"
#include "document/model/Pieces.h"
#include "document/model/Reading.h"

#include <string>
#include <string_view>

namespace korvane::doc {

/// Reads a DOCX file. Nothing that it refers to outside is opened.
ReadResult ReadDocx(std::string_view bytes, const Limits& limits = {});

std::string WriteDocx(const Document& document);
/// The same piece by piece. False when the file can't be made.
bool WriteDocx(const Document& document, const PieceTaker& take);

} // namespace korvane::doc
