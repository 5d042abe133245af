#include "text/words/WordBuffer.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr char16_t kEnd = u'\r';

/// No more of a selection is read. Kept for compatibility: word-list-takes-1024.
constexpr std::size_t kSelection = 1024;

} // namespace

void AddSelection(Text& buffer, TextView selection) {
    selection = selection.substr(0, kSelection);
    for (std::size_t start = 0; start <= selection.size();) {
        const std::size_t end = std::min(selection.find(u'\n', start), selection.size());
        // The CR of a line end stays, and ends the word before the one that is added here.
        buffer += Trim(selection.substr(start, end - start));
        buffer += kEnd;
        start = end + 1;
    }
}

std::vector<TextView> WordsOf(TextView buffer) {
    std::vector<TextView> words;
    for (std::size_t start = 0, end = 0; (end = buffer.find(kEnd, start)) != TextView::npos; start = end + 1)
        words.push_back(buffer.substr(start, end - start));
    return words;
}

} // namespace korvane
