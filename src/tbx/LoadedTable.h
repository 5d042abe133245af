#pragma once

#include "tbx/Verb.h"
#include "tbx/Workbench.h"

#include <memory>
#include <string>

namespace korvane {

/// The table of the file named by the call's first argument, loaded by the program's own reader; nullptr,
/// with the reason in `err`, when the file can't be read.
std::unique_ptr<Workbench> LoadTable(const Call& call, Environment& environment);

/// Tells in `err` what the program would have shown. A load that shows something didn't go well.
ExitStatus ReportMessages(const Workbench& workbench, Environment& environment);

} // namespace korvane
