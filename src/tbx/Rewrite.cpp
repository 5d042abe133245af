#include "tbx/Files.h"
#include "tbx/LoadedTable.h"

namespace korvane {

ExitStatus RunRewrite(const Call& call, Environment& environment) {
    const auto workbench = LoadTable(call, environment);
    if (!workbench) return ExitStatus::Error;
    const ExitStatus status = ReportMessages(*workbench, environment);
    const std::string& out = call.operands[1];
    const Text path = PathOfArgument(out, environment);
    // A load that stopped leaves an empty table: saved in place it would take the file with it.
    if (status != ExitStatus::Success && path == workbench->Table().TxtDbFile)
        return Fail(environment, Quoted(out) + " is left as it was");
    return WriteOutput(out, workbench->Save(path), environment) ? status : ExitStatus::Error;
}

} // namespace korvane
