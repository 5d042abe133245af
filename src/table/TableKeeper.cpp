#include "table/TableKeeper.h"

#include "context/App.h"
#include "grid/EndQuietly.h"

namespace korvane {

WatchedCommand::WatchedCommand(const TabContext& tab) : tab_(tab), keeper_(tab.app.Port<TableKeeper>()) {
    if (keeper_ != nullptr) keeper_->CommandBegins(tab_);
}

WatchedCommand::~WatchedCommand() {
    if (keeper_ == nullptr) return;
    EndQuietly([this] { keeper_->CommandEnds(tab_); });
}

std::unique_ptr<SaveGuard> GuardSave(const TabContext& tab) {
    if (auto* keeper = tab.app.Port<TableKeeper>()) return keeper->GuardSave(tab);
    return std::make_unique<SaveGuard>();
}

} // namespace korvane
