#pragma once

#include <QWidget>
#include <memory>
#include <span>
#include <string_view>

namespace korvane {

/// A window's name and how its look is made. A `QDialog` or `QMainWindow` is a window of its own, and a plain
/// `QWidget` is a page on a tab.
struct FormEntry {
    std::string_view name;
    std::unique_ptr<QWidget> (*make)();
};

/// All windows of the program. The build generates this list from their Designer files.
std::span<const FormEntry> KorvaneForms();

} // namespace korvane
