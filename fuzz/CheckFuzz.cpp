// Takes any bytes as a table's file. If the file has no faults, a rewritten file must contain the same table.

#include "tbx/Dump.h"
#include "tbx/FileCheck.h"
#include "tbx/TableCheck.h"
#include "tbx/base/Workbench.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace korvane {
namespace {

SharedBytes Share(std::string_view bytes) {
    const std::shared_ptr<char[]> copy(new char[bytes.size() + 1]);
    std::memcpy(copy.get(), bytes.data(), bytes.size());
    return {copy, bytes.size()};
}

std::string DumpOf(const Workbench& workbench) {
    StringOutput out;
    WriteTableDump(workbench.Table(), workbench.Messages(), out);
    out.Flush();
    return out.Bytes();
}

void CheckAndRewrite(std::string_view bytes) {
    const CodePage page = CodePage::Windows1252();
    Workbench first(page);
    first.Load(u"/a.tbx", Share(bytes));
    const std::string dump = DumpOf(first);
    FindingStream findings([](const Finding&) {});
    CheckFile(bytes, page, findings);
    CheckTable(first.Grid(), findings);
    Workbench again(page);
    again.Load(u"/a.tbx", Share(first.Save(u"/a.tbx")));
    if (findings.IsEmpty() && DumpOf(again) != dump) std::abort();
}

} // namespace
} // namespace korvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::CheckAndRewrite({reinterpret_cast<const char*>(data), size});
    return 0;
}
