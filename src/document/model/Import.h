#pragma once

#include "document/model/Document.h"

#include <optional>
#include <vector>

namespace korvane::doc {

/// Brings parts of one document into another and adds what they refer to. Tables get new numbers.
class Import {
public:
    Import(Document& to, const Document& from)
        : to_(to),
          from_(from),
          chars_(from.chars.Size()),
          paras_(from.paras.Size()),
          images_(from.images.size()),
          fonts_(from.fonts.size()) {}

    Run Take(Run run);
    /// The paragraph with its place in a table as it was.
    Paragraph Take(const Paragraph& paragraph);
    Index TakeChars(Index format);
    Index TakeParas(Index format);

private:
    std::uint16_t TakeFont(std::uint16_t font);
    Index TakeImage(Index image);

    Document& to_;
    const Document& from_;
    std::vector<std::optional<Index>> chars_;
    std::vector<std::optional<Index>> paras_;
    std::vector<std::optional<Index>> images_;
    std::vector<std::optional<std::uint16_t>> fonts_;
};

} // namespace korvane::doc
