#pragma once

#include "common/text/Text.h"
#include "files/lister/TypeImages.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace korvane {

class App;
class CommandButton;
class ListView;
class ProgressBar;
struct FileDetails;
struct ListRow;

/// The rows of the list of files: their reading, which the user can stop, their order and their marks.
class FileRows {
public:
    struct Parts {
        ListView& list;
        ProgressBar& bar;
        CommandButton& stop;
    };
    /// All outlive the object.
    FileRows(App& app, Parts parts);

    /// Reads the files of the folder that match the patterns. The first one is the current row then, and the
    /// list has the keyboard. Without pictures the list stays empty. False when the window closed or another
    /// folder was read in the meantime.
    bool Fill(const Text& folder, const Text& patterns);
    /// Ends the reading with the row at hand.
    void Stop() { stopRequested_ = true; }
    /// Ends the reading without a trace, since the window goes.
    void Abandon() { ++fill_; }

    /// Whether the program, not the user, is choosing the current row.
    bool Choosing() const { return choosing_; }
    /// The user has chosen rows himself since the list was filled.
    void NoteChoice() { chosenByUser_ = true; }
    bool ChosenByUser() const { return chosenByUser_; }

    int Count() const;
    /// 0 in an empty list.
    int Current() const;
    /// The name in the current row; empty in an empty list.
    Text CurrentName() const;
    std::vector<Text> MarkedNames() const;
    void MarkAll();
    /// Marks these names and no others.
    void Mark(const std::vector<Text>& names);
    /// Makes a row the current one, or the last one where there are fewer.
    void GoToRow(int row);
    void GoToName(TextView name);
    /// Gives the keyboard to the list, with its current row marked.
    void TakeFocus();
    /// Sorts what is in the list by its texts.
    void Sort();

private:
    /// Of more files than these the reading is shown, and it can be stopped.
    static constexpr std::size_t kMostReadAtOnce = 1000;

    /// Ends early when the user stops it or the reading was overtaken.
    std::vector<Text> FindNames(const Text& folder, const Text& patterns);
    void ShowReading(bool shown);
    bool Read(const Text& folder, const std::vector<Text>& names);
    void WriteRow(ListRow& row, const Text& folder, const Text& name,
                  const std::optional<FileDetails>& details);
    void TakeSortForm(ListRow& row, std::vector<Text>& sortForms) const;
    void Order(const std::vector<Text>& sortForms);
    void Choose(int row);

    App& app_;
    Parts parts_;
    TypeImages images_;
    /// Which reading is the present one.
    int fill_ = 0;
    bool stopRequested_ = false;
    bool choosing_ = false;
    bool chosenByUser_ = false;
};

} // namespace korvane
