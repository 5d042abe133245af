#include "common/number/DateTime.h"
#include "common/number/Number.h"
#include "kept/KeptVersions.h"
#include "kept/UnsavedWork.h"
#include "platform/FileSystem.h"
#include "tbx/Verb.h"
#include "tbx/base/Files.h"
#include "tbx/base/Workbench.h"
#include "tbx/formats/TsvRows.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace korvane {

namespace {

constexpr std::string_view kUnsaved = "unsaved";

/// A kept table by the word that names it for the command: its number, or "unsaved".
struct KeptTable {
    std::string word;
    KeptFile file;
};

/// Everything that is kept, by the path of the table.
class KeptStock {
public:
    explicit KeptStock(const Environment& environment)
        : files_(environment.files), root_(environment.keptFolder) {}

    std::vector<Text> Tables() const {
        std::vector<Text> tables = KeptVersions(files_, root_).Tables();
        for (const auto& [name, draft] : Drafts())
            if (std::ranges::find(tables, name) == tables.end()) tables.push_back(name);
        return tables;
    }

    std::vector<KeptTable> Of(const Text& table) const {
        std::vector<KeptTable> kept;
        for (const KeptFile& version : KeptVersions(files_, root_).Of(table))
            kept.push_back({std::to_string(version.number), version});
        const auto drafts = Drafts();
        if (const auto draft = drafts.find(table); draft != drafts.end())
            kept.push_back({std::string(kUnsaved), draft->second});
        return kept;
    }

private:
    /// The newest draft of each table.
    std::map<Text, KeptFile> Drafts() const {
        std::map<Text, KeptFile> newest;
        for (const Text& folder : RunFolders(files_, root_).AllTables()) {
            const TableFolder place(files_, root_, folder);
            const auto drafts = place.Drafts();
            if (drafts.empty()) continue;
            const auto [found, isNew] = newest.emplace(place.Name(), drafts.back());
            if (!isNew && found->second.modified < drafts.back().modified) found->second = drafts.back();
        }
        return newest;
    }

    FileSystem& files_;
    Text root_;
};

std::optional<SharedBytes> ReadKept(const KeptTable& table, Environment& environment) {
    return ReadFileAt(table.file.path, environment);
}

/// "12  2026-11-21 23:32:00  12,345 bytes  201 rows".
void WriteLine(const KeptTable& table, const Call& call, Environment& environment) {
    const auto bytes = ReadKept(table, environment);
    if (!bytes) return;
    Workbench workbench(call.page);
    workbench.Load(table.file.path, *bytes);
    environment.out.Write(table.word + "  " +
                          ToUtf8(GeneralDate(table.file.modified) + u"  " + FormatGrouped(table.file.size) +
                                 u" bytes  " + NumberText(workbench.Grid().RowCount().Number()) +
                                 u" rows\n"));
}

ExitStatus ListAll(const Call& call, Environment& environment) {
    const KeptStock stock(environment);
    const std::vector<Text> tables = stock.Tables();
    for (const Text& table : tables) {
        environment.out.Write(ToUtf8(table) + "\n");
        for (const KeptTable& kept : stock.Of(table)) {
            environment.out.Write("  ");
            WriteLine(kept, call, environment);
        }
    }
    return tables.empty() ? ExitStatus::Problem : ExitStatus::Success;
}

ExitStatus List(const std::vector<KeptTable>& kept, const Call& call, Environment& environment) {
    for (const KeptTable& table : kept)
        WriteLine(table, call, environment);
    return kept.empty() ? ExitStatus::Problem : ExitStatus::Success;
}

using RowTexts = std::vector<Text>;

std::vector<RowTexts> RowsOf(TextView path, const SharedBytes& bytes, const CodePage& page) {
    Workbench workbench(page);
    workbench.Load(path, bytes);
    std::vector<RowTexts> rows;
    for (Row row{1}; row <= workbench.Grid().RowCount(); ++row) {
        rows.emplace_back();
        for (Col col{1}; col <= workbench.Grid().ColCount(); ++col)
            rows.back().push_back(workbench.Grid().CellText(row, col));
    }
    return rows;
}

/// Writes the rows that the other table hasn't, each after the mark; false when there is none.
bool WriteMissing(const std::vector<RowTexts>& rows, const std::vector<RowTexts>& others,
                  std::string_view mark, Output& out) {
    std::map<RowTexts, int> left;
    for (const RowTexts& row : others)
        ++left[row];
    bool any = false;
    TsvRows format;
    for (const RowTexts& row : rows) {
        if (--left[row] >= 0) continue;
        out.Write(mark);
        format.AddRow(std::vector<CellText>(row.begin(), row.end()), out);
        any = true;
    }
    return any;
}

ExitStatus Diff(const KeptTable& table, const Call& call, Environment& environment) {
    const auto before = ReadKept(table, environment);
    const auto now = ReadInput(call.operands[0], environment);
    if (!before || !now) return ExitStatus::Error;
    const Text path = PathOfArgument(call.operands[0], environment);
    const auto oldRows = RowsOf(path, *before, call.page);
    const auto newRows = RowsOf(path, *now, call.page);
    const bool gone = WriteMissing(oldRows, newRows, "-\t", environment.out);
    const bool added = WriteMissing(newRows, oldRows, "+\t", environment.out);
    return gone || added ? ExitStatus::Success : ExitStatus::Problem;
}

ExitStatus Restore(const KeptTable& table, const Call& call, Environment& environment) {
    const auto bytes = ReadKept(table, environment);
    return bytes && WriteOutput(call.operands[1], bytes->View(), environment) ? ExitStatus::Success
                                                                              : ExitStatus::Error;
}

} // namespace

ExitStatus RunKept(const Call& call, Environment& environment) {
    const bool restores = !call.restore.empty();
    if (restores != (call.operands.size() == 2))
        return Fail(environment, restores ? "--restore needs FILE and OUT" : "OUT is only for --restore");
    if (call.operands.empty()) {
        return call.diff.empty() ? ListAll(call, environment) : Fail(environment, "--diff needs FILE");
    }
    const auto kept = KeptStock(environment).Of(PathOfArgument(call.operands[0], environment));
    const std::string& word = restores ? call.restore : call.diff;
    if (word.empty()) return List(kept, call, environment);
    const auto found = std::ranges::find(kept, word, &KeptTable::word);
    if (found == kept.end())
        return Fail(environment, "nothing is kept of " + Quoted(call.operands[0]) + " as " + Quoted(word));
    return restores ? Restore(*found, call, environment) : Diff(*found, call, environment);
}

} // namespace korvane
