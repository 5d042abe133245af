#pragma once

#include "document/model/Document.h"
#include "document/model/Pieces.h"
#include "document/model/Reading.h"

#include <string>
#include <string_view>

namespace korvane::doc {

/// Reads an HTML file, or a piece of HTML from the clipboard. Nothing that it refers to is opened, and only
/// pictures that are part of it are shown.
ReadResult ReadHtml(std::string_view bytes, const Limits& limits = {});

/// The document as HTML in UTF-8 with its pictures in it.
std::string WriteHtml(const Document& document);
/// The same without ever having all of it in memory.
void WriteHtml(const Document& document, const PieceTaker& take);

} // namespace korvane::doc
