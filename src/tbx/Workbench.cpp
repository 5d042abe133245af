#include "tbx/Workbench.h"

#include "table/TableFile.h"

namespace korvane {

Workbench::Workbench(PathStyle style, const CodePage& page)
    : files_(style),
      app_({files_, messages_, clipboard_, clock_, screen_, shell_, instance_, forms_, {}, page}),
      grid_(page),
      table_(grid_),
      context_{app_, table_, tab_} {}

void Workbench::Load(TextView path, SharedBytes bytes) {
    files_.SetFile(path, std::move(bytes));
    table_.TxtDbFile = path;
    ReadTableData(context_);
}

std::string Workbench::Save(TextView path) {
    table_.TxtDbFile = path;
    SaveThisTable(context_);
    return files_.TakeWritten();
}

} // namespace korvane
