#include "tbx/base/LoadedTable.h"

#include "tbx/base/Files.h"

namespace korvane {

std::unique_ptr<Workbench> LoadTable(const Call& call, Environment& environment) {
    const std::string& name = call.operands.front();
    const auto bytes = ReadInput(name, environment);
    if (!bytes) return nullptr;
    auto workbench = std::make_unique<Workbench>(call.page);
    workbench->Load(PathOfArgument(name, environment), *bytes);
    return workbench;
}

ExitStatus ReportMessages(const Workbench& workbench, Environment& environment) {
    for (const Message& message : workbench.Messages())
        Complain(environment, ToUtf8(message.text));
    return workbench.Messages().empty() ? ExitStatus::Success : ExitStatus::Problem;
}

} // namespace korvane
