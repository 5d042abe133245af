#include "table/model/TableHistory.h"

#include "grid/Grid.h"
#include "table/model/TableHost.h"

#include <exception>
#include <utility>

namespace korvane {

namespace {

/// The fields of the model that commands change. The path of the file isn't among them, because undoing
/// doesn't take a save back.
constexpr std::tuple kFields{&TableAttributes::SetRowHeight, &TableAttributes::TableBackColour,
                             &TableAttributes::TableFontName, &TableAttributes::TableFontSize,
                             &TableAttributes::ColumnNames};

} // namespace

TableHistory::TableHistory(TableModel& table, TableHost& host, std::size_t mostMemory)
    : table_(table), host_(host), mostMemory_(mostMemory), attributes_(table) {
    table_.GridStore().NoteChanges(true);
}

TableHistory::~TableHistory() {
    table_.GridStore().NoteChanges(false);
}

std::size_t TableHistory::Step::MemoryUse() const {
    const std::size_t own = sizeof(Step) + attributes.capacity() * sizeof(AttributeNote);
    return own + (grid == nullptr ? 0 : grid->MemoryUse());
}

void TableHistory::EndStep() {
    if (stopped_) return;
    Step step{table_.GridStore().TakeNotedChanges(), {}, 0};
    if (commandDepth_ > 0) step.attributes = ChangedAttributes();
    attributes_ = table_;
    if (step.grid == nullptr && step.attributes.empty()) return;
    undone_.clear();
    step.state = ++lastState_;
    doneMemory_ += step.MemoryUse();
    done_.push_back(std::move(step));
    ForgetOldest();
}

std::vector<TableHistory::AttributeNote> TableHistory::ChangedAttributes() const {
    std::vector<AttributeNote> notes;
    const auto note = [&](auto field) {
        using Value = std::remove_cvref_t<decltype(attributes_.*field)>;
        if (attributes_.*field != table_.*field) notes.push_back(FieldNote<Value>{field, attributes_.*field});
    };
    std::apply([&note](auto... field) { (note(field), ...); }, kFields);
    return notes;
}

/// The latest step is kept, however much memory it takes.
void TableHistory::ForgetOldest() {
    while (doneMemory_ > mostMemory_ && done_.size() > 1) {
        doneMemory_ -= done_.front().MemoryUse();
        first_ = done_.front().state;
        done_.pop_front();
    }
}

void TableHistory::NoteSaved() {
    EndStep();
    saved_ = State();
}

bool TableHistory::Undo() {
    EndStep();
    if (!done_.empty()) doneMemory_ -= done_.back().MemoryUse();
    return MoveStep(done_, undone_);
}

bool TableHistory::Redo() {
    EndStep();
    if (!MoveStep(undone_, done_)) return false;
    doneMemory_ += done_.back().MemoryUse();
    return true;
}

bool TableHistory::MoveStep(Steps& from, Steps& to) {
    if (from.empty()) return false;
    to.push_back(std::move(from.back()));
    from.pop_back();
    TurnStep(to.back());
    return true;
}

void TableHistory::TurnStep(Step& step) {
    Grid& grid = table_.GridStore();
    if (step.grid != nullptr) grid.TurnChanges(*step.grid);
    const auto height = table_.SetRowHeight;
    for (AttributeNote& note : step.attributes)
        std::visit([this](auto& each) { std::swap(table_.*each.field, each.other); }, note);
    if (table_.SetRowHeight != height) host_.ShowRowHeight(table_.SetRowHeight.value_or(std::int16_t{0}));
    attributes_ = table_;
    table_.TableAltered = State() == saved_ ? 0 : 1;
    grid.EnsureRowVisible(grid.CurRow());
    grid.GridSetFocus();
}

void TableHistory::Stop() {
    table_.GridStore().NoteChanges(false);
    stopped_ = true;
    done_.clear();
    undone_.clear();
    doneMemory_ = 0;
}

void TableHistory::Start() {
    table_.GridStore().NoteChanges(true);
    stopped_ = false;
    attributes_ = table_;
    saved_ = first_ = ++lastState_;
}

TableStep::TableStep(TableHistory& history) : history_(history) {
    history_.EndStep();
    ++history_.commandDepth_;
}

TableStep::~TableStep() {
    try {
        history_.EndStep();
    } catch (const std::exception&) {
        // The earlier steps lead to a state that isn't this one, and nobody knows whether this one is saved.
        history_.Stop();
        history_.Start();
        history_.NoteFileLost();
    }
    --history_.commandDepth_;
}

HistoryRestart::HistoryRestart(TableHistory* history) : history_(history) {
    if (history_ != nullptr) history_->Stop();
}

HistoryRestart::~HistoryRestart() {
    if (history_ != nullptr) history_->Start();
}

} // namespace korvane
