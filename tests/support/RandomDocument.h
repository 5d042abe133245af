#pragma once

#include "document/model/Document.h"

#include <string>

namespace korvane::doc {

/// What random documents contain. A test of a format leaves out what its files can't hold.
struct Holdings {
    bool notes = true;
    bool images = true;
    bool lists = true;
    bool frames = true;
    bool doubleFrames = true;
    bool scripts = true;
    bool pageBreaks = true;
    bool page = true;
    /// Whether raised characters are raised by a multiple of 10 twips only.
    bool coarseBaseLine = false;
};

/// A sound document that is the same for the same seed.
Document RandomDocument(unsigned seed, const Holdings& holdings = {});

/// The first difference in words for a test's message, empty when both have the same content.
std::string FirstDifference(const Document& a, const Document& b);

/// A picture of one pixel.
std::string_view OnePixelPng();

} // namespace korvane::doc
