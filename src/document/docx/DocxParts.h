#pragma once

#include "document/model/Document.h"
#include "document/model/Reading.h"
#include "document/package/Package.h"

namespace korvane::doc {

/// The parts of a DOCX file, before they are packed or after they were unpacked.
ReadResult ReadDocxParts(const PackageParts& parts, const Limits& limits = {});

/// The document outlives the writer.
PackageWriter MakeDocxParts(const Document& document);

} // namespace korvane::doc
