#include "kept/KeptTexts.h"

#include "common/number/Number.h"
#include "kept/KeptFiles.h"
#include "kept/KeptRecords.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <functional>

namespace korvane {

namespace {

constexpr TextView kTexts = u"texts";
constexpr TextView kText = u"text.rtf";
constexpr TextView kName = u"name";

} // namespace

KeptTexts::KeptTexts(FileSystem& files, TextView root)
    : files_(files), folder_(root.empty() ? Text() : files.Style().JoinPath(root, kTexts)) {}

void KeptTexts::LookForUnsaved() {
    unsaved_.clear();
    if (folder_.empty()) return;
    for (const Text& name : files_.FolderNames(folder_))
        LookInto(files_.Style().JoinPath(folder_, name));
    std::ranges::stable_sort(unsaved_, std::greater(), &UnsavedText::changed);
    if (!unsaved_.empty() && UnsavedChanged) UnsavedChanged();
}

void KeptTexts::LookInto(const Text& folder) {
    const Text file = files_.Style().JoinPath(folder, kText);
    const auto changed = files_.Modified(file);
    const auto name = RecordFile(files_, folder, kName).Read<NameRecord>();
    if (changed && name) return unsaved_.push_back({name->name, file, *changed});
    // The program was killed before it had written the text.
    if (!changed) RemoveWithFiles(files_, folder);
}

Text KeptTexts::NewFolder() const {
    int last = 0;
    for (const Text& name : files_.FolderNames(folder_)) {
        int number = 0;
        if (ReadNumber(name, number)) last = std::max(last, number);
    }
    return files_.Style().JoinPath(folder_, NumberText(last + 1));
}

Text KeptTexts::Keep(const Text& file, const Text& name, std::string_view rtf) {
    if (folder_.empty()) return {};
    const Text folder = file.empty() ? NewFolder() : Text(files_.Style().FolderPart(file));
    const Text path = files_.Style().JoinPath(folder, kText);
    // The name comes first, because a text without one isn't listed.
    const bool kept = MakePrivateDirs(files_, folder) &&
                      RecordFile(files_, folder, kName).Write(ToRecord(NameRecord{name})) &&
                      files_.WriteWhole(path, rtf, Readers::OwnerAlone);
    if (kept) return path;
    // What was kept before is better than nothing.
    if (file.empty()) RemoveWithFiles(files_, folder);
    return file;
}

void KeptTexts::Forget(const Text& file) {
    if (!file.empty()) RemoveWithFiles(files_, Text(files_.Style().FolderPart(file)));
}

void KeptTexts::Adopt(const Text& file) {
    std::erase_if(unsaved_, [&](const UnsavedText& text) { return text.file == file; });
    if (UnsavedChanged) UnsavedChanged();
}

} // namespace korvane
