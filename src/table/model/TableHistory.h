#pragma once

#include "grid/Grid.h"
#include "table/model/TableModel.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <tuple>
#include <variant>
#include <vector>

namespace korvane {

class TableHost;

/// The steps by which a table came to be what it is, so that they can be undone and redone: one for each
/// command or edit that changed something. A step costs what it changed, never a copy of the table.
class TableHistory {
public:
    /// When the steps take more memory than this, the oldest are forgotten. It is enough for some fifty
    /// changes of a whole column at the format's limit, and for more single edits than anybody makes in a
    /// day. Without a limit, a long day with a large table would take gigabytes.
    static constexpr std::size_t kMostMemory = std::size_t{256} * 1024 * 1024;

    /// Table and host outlive the history.
    TableHistory(TableModel& table, TableHost& host, std::size_t mostMemory = kMostMemory);
    TableHistory(const TableHistory&) = delete;
    TableHistory& operator=(const TableHistory&) = delete;
    ~TableHistory();

    /// Makes a step of what changed since the last one, and forgets the steps that were undone. Nothing
    /// happens when nothing changed.
    void EndStep();
    /// Keeps a change of the model's row height out of the next step, because it wasn't an edit.
    void IgnoreRowHeight() { attributes_.SetRowHeight = table_.SetRowHeight; }

    /// The file has what the table has now. When undoing or redoing comes back here, the table doesn't count
    /// as altered any more.
    void NoteSaved();
    /// No state of the table is in the file any more.
    void NoteFileLost() { saved_ = kNowhere; }

    /// Takes the latest step back. False when there is none.
    bool Undo();
    /// Makes the step again that was undone last. False when there is none.
    bool Redo();

private:
    friend class TableStep;
    friend class HistoryRestart;

    template <class Field>
    struct FieldNote {
        Field TableAttributes::*field;
        Field other;
    };
    using AttributeNote =
        std::variant<FieldNote<std::optional<std::int16_t>>, FieldNote<std::optional<Colour>>,
                     FieldNote<std::optional<SharedText>>, FieldNote<ColumnTexts>>;
    struct Step {
        /// There are none when only attributes changed.
        std::unique_ptr<GridChanges> grid;
        std::vector<AttributeNote> attributes;
        /// This is the number of the state that the step leads to.
        std::size_t state = 0;

        std::size_t MemoryUse() const;
    };
    using Steps = std::deque<Step>;

    static constexpr std::size_t kNowhere = 0;

    /// The number of the state in which the table is. No other state ever gets it.
    std::size_t State() const { return done_.empty() ? first_ : done_.back().state; }
    std::vector<AttributeNote> ChangedAttributes() const;
    void TurnStep(Step& step);
    bool MoveStep(Steps& from, Steps& to);
    void ForgetOldest();
    void Stop();
    void Start();

    TableModel& table_;
    TableHost& host_;
    std::size_t mostMemory_;
    Steps done_;
    Steps undone_;
    std::size_t doneMemory_ = 0;
    /// They are as they were at the end of the last step.
    TableAttributes attributes_;
    std::size_t lastState_ = 1;
    /// This is the state before the first step.
    std::size_t first_ = 1;
    std::size_t saved_ = 1;
    int commandDepth_ = 0;
    bool stopped_ = false;
};

/// Makes a step of what changes while it exists, the fields of the model included. What changed before
/// becomes a step of its own. When one exists inside another, each makes steps of its own.
class TableStep {
public:
    explicit TableStep(TableHistory& history);
    TableStep(const TableStep&) = delete;
    TableStep& operator=(const TableStep&) = delete;
    ~TableStep();

private:
    TableHistory& history_;
};

/// Forgets a history, and starts it again when this object is destroyed. Changes in between aren't recorded.
class HistoryRestart {
public:
    /// nullptr when there is no history.
    explicit HistoryRestart(TableHistory* history);
    HistoryRestart(const HistoryRestart&) = delete;
    HistoryRestart& operator=(const HistoryRestart&) = delete;
    ~HistoryRestart();

private:
    TableHistory* history_;
};

} // namespace korvane
