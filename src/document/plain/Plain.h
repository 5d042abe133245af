#pragma once

#include "common/text/CodePage.h"
#include "document/model/Document.h"
#include "document/model/Reading.h"

#include <string>
#include <string_view>

namespace korvane::doc {

/// The text of a file: in UTF-8 or UTF-16 if it begins with the mark of one of them, in the code page
/// otherwise.
Text DecodeText(std::string_view bytes, const CodePage& page);

/// Reads a plain text. A paragraph ends at CR LF, CR or LF.
ReadResult ReadPlain(std::string_view bytes, const CodePage& page, const Limits& limits = {});

/// The text in the code page with CR LF between paragraphs and for line breaks. Pictures are left out.
std::string WritePlain(const Document& document, const CodePage& page);

} // namespace korvane::doc
