#pragma once

#include "common/text/CodePage.h"
#include "dbops/rules/TextTable.h"

#include <string>
#include <vector>

namespace korvane {

/// One call of a command, its arguments tested.
struct Call {
    std::vector<std::string> operands;
    CodePage page;
    char delimiter = ',';
    /// The kept table to restore, and the one to compare with; empty for none.
    std::string restore;
    std::string diff;
    /// How a table looks in a document.
    TextTableLook look{};
};

} // namespace korvane
