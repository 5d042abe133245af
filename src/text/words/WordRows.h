#pragma once

#include "common/text/Text.h"
#include "controls/lists/ListRow.h"
#include "text/words/WordIndex.h"

#include <vector>

namespace korvane {

class ListView;

/// The words in the rows of a list, which count from 1.
class WordRows {
public:
    /// The list outlives the object, and nobody else changes its rows.
    explicit WordRows(ListView& list) : list_(list) {}

    Text At(int row) const;
    std::vector<Text> All() const;
    bool Holds(TextView word) const { return index_.Holds(word); }
    /// The selected words in their order, each followed by CR LF.
    Text Selected() const;

    void Add(TextView word);
    void Show(const std::vector<Text>& words);
    void Replace(int row, TextView word);
    void RemoveSelected();
    void Sort();
    /// Moves the current word by `step` rows, and the selection with it. Nothing happens past the ends.
    void Move(int step);

    /// Each word ended by CR.
    Text Buffer() const;
    /// Shows each of these words once, and no blank ones.
    void ShowBuffer(TextView buffer);

private:
    void Clear();

    ListView& list_;
    /// The row that is added just now; kept so that not each row asks for memory.
    ListRow row_{.texts = {Text()}};
    WordIndex index_;
};

} // namespace korvane
