// Any bytes as the file of the word list, and as a selection that goes into the list.

#include "StateStage.h"
#include "files/lists/ListFile.h"
#include "text/words/WordBuffer.h"
#include "text/words/WordListState.h"
#include "text/words/frmHoldWordList.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <string_view>
#include <vector>

namespace korvane {
namespace {

const Text kList = u"C:\\Korvane\\words.lst";

using Words = std::vector<Text>;

Words WordsIn(const frmHoldWordList& window) {
    Words words;
    for (int row = 1; row <= window.lstWordList.Count(); ++row)
        words.emplace_back(window.lstWordList.TextAt(row, 1));
    return words;
}

/// Opens the list and closes it again; what it shows.
Words Opened(StateStage& stage) {
    frmHoldWordList window(stage.app);
    window.EnsureLoaded();
    Words words = WordsIn(window);
    window.Close();
    return words;
}

Words WithoutDuplicates(const Words& words) {
    Words once;
    std::set<Text> known;
    std::ranges::copy_if(words, std::back_inserter(once), [&known](const Text& word) {
        return !Trim(word).empty() && known.insert(word).second;
    });
    return once;
}

void CheckFile(std::string_view bytes) {
    StateStage stage;
    stage.files.AddFile(kList, bytes);
    stage.app.Settings.WordListFile = kList;
    stage.app.Exchange<WordListState>().WordListAutoSave = 1;
    Words words = LinesOfList(bytes, stage.app.Page());
    std::erase_if(words, [](const Text& line) { return line.empty() || line.starts_with(u';'); });
    Require(Opened(stage) == words, "the list has the lines that are no comments");
    const auto written = ReadListFile(stage.app, kList);
    Require(written == words, "what is saved is what was shown");
    Require(Opened(stage) == WithoutDuplicates(words), "each word is there once when the list opens again");
}

void CheckSelection(std::string_view bytes) {
    StateStage stage;
    const Text selection = stage.app.Page().ToText(bytes);
    Text& buffer = stage.app.Exchange<WordListState>().WordListBuffer;
    AddSelection(buffer, selection);
    Require(buffer.size() <= selection.size() + 1, "no more is taken than is selected");
    const Words once = Opened(stage);
    Require(once == WithoutDuplicates(once), "each word is there once");
    AddSelection(buffer, selection);
    Require(Opened(stage) == once, "a selection that is sent twice adds its words once");
}

void Check(std::string_view bytes) {
    CheckSelection(bytes);
    // What has a zero byte is no list, and a box tells so.
    if (bytes.find('\0') == std::string_view::npos) CheckFile(bytes);
}

} // namespace
} // namespace korvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::Check({reinterpret_cast<const char*>(data), size});
    return 0;
}
