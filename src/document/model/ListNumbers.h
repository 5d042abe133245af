#pragma once

#include "document/model/Document.h"

#include <vector>

namespace korvane::doc {

/// The number of each paragraph in its list, which counts on over other paragraphs between. 0 without a list.
std::vector<int> ListNumbers(const Document& document);

} // namespace korvane::doc
