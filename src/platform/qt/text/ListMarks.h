#pragma once

#include "document/model/Document.h"

#include <vector>

namespace korvane {

/// The number of each paragraph in its list, which counts on over other paragraphs between. 0 without a list.
std::vector<int> ListNumbers(const doc::Document& document);

/// What is before the text of a paragraph with this number in its list.
Text MarkText(const doc::ListMark& mark, int number);

} // namespace korvane
