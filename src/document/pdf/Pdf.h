#pragma once

#include "document/model/Reading.h"

#include <string_view>

namespace korvane::doc {

/// Reads what `pdftohtml -xml` makes of a PDF file: its lines, each as a paragraph, with their fonts, colours
/// and links. Pictures and places on the page are left out.
ReadResult ReadPdfXml(std::string_view bytes, const Limits& limits = {});

} // namespace korvane::doc
