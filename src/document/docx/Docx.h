#pragma once

#include "document/model/Document.h"
#include "document/model/Reading.h"

#include <string>
#include <string_view>

namespace korvane::doc {

/// Reads a DOCX file. Nothing that it refers to outside is opened.
ReadResult ReadDocx(std::string_view bytes, const Limits& limits = {});

std::string WriteDocx(const Document& document);

} // namespace korvane::doc
