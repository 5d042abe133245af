#pragma once

#include "common/text/Text.h"
#include "files/lister/rows/DiskWait.h"
#include "files/lister/rows/TypeImages.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace korvane {

class App;
struct FileDetails;
struct ListRow;

/// The rows of the list of files: their reading, which the user can stop, their order and their marks.
class FileRows {
public:
    using Parts = DiskWait::Parts;
    /// All outlive the object.
    FileRows(App& app, Parts parts, DiskWait& wait);

    /// Makes the folder the current directory, and reads its files that match the patterns. The first one is
    /// the current row then, and the list has the keyboard. Without pictures the list stays empty. False when
    /// the window closed or another folder was read in the meantime, and when the disk didn't answer until
    /// the user stopped it.
    bool Fill(const Text& folder, const Text& patterns);
    /// Ends the reading without a trace, since the window goes.
    void Abandon() { ++fill_; }

    /// Whether the program, not the user, is choosing the current row.
    bool Choosing() const { return choosing_; }
    /// It is the user who has chosen rows since the list was filled.
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

    /// Of so many files the disk is asked for size and date at a time. Each time costs a turn to another
    /// thread and back.
    static constexpr std::size_t kDetailsInStep = 4096;

private:
    /// Of more files than these the reading is shown, and it can be stopped.
    static constexpr std::size_t kMostReadAtOnce = 1000;

    using AllDetails = std::vector<std::optional<FileDetails>>;
    /// Of files that follow one another in the list.
    struct Step {
        std::size_t end = 0;
        AllDetails details;
        /// Nothing comes after it, because the disk gave no more answers.
        bool last = false;
    };

    /// Ends early when the user stops it or the reading was overtaken. Nothing if there was no answer at all.
    std::optional<std::vector<Text>> FindNames(const Text& folder, const Text& patterns);
    bool TellHowMany(const std::vector<Text>& names);
    /// Gives the list back to the user.
    void End();
    bool Read(const Text& folder, const std::vector<Text>& names);
    /// Those of some names from `first` on.
    Step FindDetails(const Text& folder, const std::vector<Text>& names, std::size_t first);
    void WriteRow(ListRow& row, const Text& folder, const Text& name,
                  const std::optional<FileDetails>& details);
    void TakeSortForm(ListRow& row, std::vector<Text>& sortForms) const;
    void Order(const std::vector<Text>& sortForms);
    void Choose(int row);

    App& app_;
    Parts parts_;
    DiskWait& wait_;
    TypeImages images_;
    /// Which reading is the present one.
    int fill_ = 0;
    bool choosing_ = false;
    bool chosenByUser_ = false;
};

} // namespace korvane
