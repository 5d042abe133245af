#include "context/App.h"

#include "grid/Grid.h"
#include "platform/Spreadsheet.h"

namespace korvane {

App::App(Platform platform) : platform_(std::move(platform)) {}

App::~App() = default;

std::unique_ptr<Grid> App::MakeGrid() const {
    return platform_.makeGrid();
}

std::unique_ptr<Spreadsheet> App::MakeSpreadsheet() const {
    return platform_.makeSpreadsheet ? platform_.makeSpreadsheet() : nullptr;
}

} // namespace korvane
