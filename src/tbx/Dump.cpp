#include "tbx/LoadedTable.h"
#include "tbx/TableDump.h"

namespace korvane {

ExitStatus RunDump(const Call& call, Environment& environment) {
    const auto workbench = LoadTable(call, environment);
    if (!workbench) return ExitStatus::Error;
    WriteTableDump(workbench->Table(), workbench->Messages(), environment.out);
    return ExitStatus::Success;
}

} // namespace korvane
