#include "BenchProgram.h"

#include "LimitTable.h"
#include "table/TableFile.h"

#include <cstdio>
#include <cstdlib>

namespace korvane::bench {

void BenchProgram::Load() {
    Load(LimitTablePath());
}

void BenchProgram::Load(const std::string& path) {
    table.TxtDbFile = FromUtf8(path);
    ReadTableData(tab);
    if (grid.RowCount() == kMaxRows && grid.ColCount() == MaxColumns) return;
    std::fputs("the table at the limit didn't load\n", stderr);
    std::exit(1);
}

} // namespace korvane::bench
