#pragma once

#include "tbx/base/Call.h"
#include "tbx/base/Environment.h"
#include "tbx/base/Workbench.h"

#include <memory>
#include <string>

namespace korvane {

/// The table of the file named by the call's first argument, loaded by the program's own reader; nullptr,
/// with the reason in `err`, when the file can't be read.
std::unique_ptr<Workbench> LoadTable(const Call& call, Environment& environment);

/// Writes to `err` what the program would have shown. A load that shows something has failed.
ExitStatus ReportMessages(const Workbench& workbench, Environment& environment);

} // namespace korvane
