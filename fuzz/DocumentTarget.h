#pragma once

#include "Require.h"
#include "document/model/Document.h"
#include "document/model/Reading.h"

#include <string>

namespace korvane::doc {

/// Reads the bytes as a document and writes it. What is read of that must be written as the same bytes again.
template <class Read, class Write>
void ReadAndWrite(std::string_view bytes, const Read& read, const Write& write) {
    const ReadResult first = read(bytes);
    Require(IsSound(first.document), "a document that was read isn't sound");
    const ReadResult second = read(write(first.document));
    Require(IsSound(second.document), "a document that was written isn't sound");
    const std::string settled = write(second.document);
    Require(write(read(settled).document) == settled, "a document changes each time it is written");
}

} // namespace korvane::doc
