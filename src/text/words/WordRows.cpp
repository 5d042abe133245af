#include "text/words/WordRows.h"

#include "common/number/Number.h"
#include "controls/UpdateScope.h"
#include "controls/lists/ListView.h"
#include "text/words/WordBuffer.h"

namespace korvane {

Text WordRows::At(int row) const {
    return Text(list_.TextAt(row, 1));
}

std::vector<Text> WordRows::All() const {
    std::vector<Text> words;
    for (int row = 1; row <= list_.Count(); ++row)
        words.push_back(At(row));
    return words;
}

Text WordRows::Selected() const {
    Text words;
    for (const int row : list_.SelectedRows())
        words.append(list_.TextAt(row, 1)).append(kCrLf);
    return words;
}

void WordRows::Clear() {
    index_.Clear();
    list_.Clear();
}

void WordRows::Add(TextView word) {
    index_.Add(word);
    row_.key = u"K_" + NumberText(list_.Count() + 1);
    row_.texts.front() = word;
    list_.Add(row_);
}

void WordRows::Show(const std::vector<Text>& words) {
    const UpdateScope update(list_);
    Clear();
    for (const Text& word : words)
        Add(word);
}

void WordRows::Replace(int row, TextView word) {
    index_.Remove(list_.TextAt(row, 1));
    index_.Add(word);
    list_.SetText(row, 1, word);
}

void WordRows::RemoveSelected() {
    std::vector<Text> others;
    for (int row = 1; row <= list_.Count(); ++row)
        if (!list_.Selected(row)) others.push_back(At(row));
    Show(others);
}

void WordRows::Sort() {
    const UpdateScope update(list_);
    list_.SortBy(1, SortOrder::Ascending);
    Show(All());
}

void WordRows::Move(int step) {
    const int row = list_.Current();
    const int other = row + step;
    if (row < 1 || other < 1 || other > list_.Count()) return;
    const Text word = At(row);
    list_.SetText(row, 1, At(other));
    list_.SetText(other, 1, word);
    list_.SetCurrent(other);
}

Text WordRows::Buffer() const {
    Text buffer;
    for (int row = 1; row <= list_.Count(); ++row)
        buffer.append(list_.TextAt(row, 1)) += u'\r';
    return buffer;
}

void WordRows::ShowBuffer(TextView buffer) {
    const UpdateScope update(list_);
    Clear();
    for (const TextView word : WordsOf(buffer))
        if (!Trim(word).empty() && !Holds(word)) Add(word);
}

} // namespace korvane
