#pragma once

#include "document/model/Document.h"

namespace korvane {

/// What is before the text of a paragraph with this number in its list.
Text MarkText(const doc::ListMark& mark, int number);

} // namespace korvane
