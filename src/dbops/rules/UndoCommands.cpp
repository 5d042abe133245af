#include "dbops/rules/UndoCommands.h"

#include "table/TabContext.h"
#include "table/model/TableHistory.h"

namespace korvane {

void UndoEdit(const TabContext& tab) {
    if (tab.history != nullptr) tab.history->Undo();
}

void RedoEdit(const TabContext& tab) {
    if (tab.history != nullptr) tab.history->Redo();
}

void EndEdit(const TabContext& tab) {
    if (tab.history != nullptr) tab.history->EndStep();
}

} // namespace korvane
