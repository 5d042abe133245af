#pragma once

#include <cstdint>
#include <optional>

namespace korvane {

class App;
class TextControl;

/// Turns all tags into formatting in one pass, if anything is selected and the user agrees. The whole text is
/// converted (kept for compatibility: conversion-takes-whole-text). A closing tag reaches back to the last
/// opening one, whichever that was (kept for compatibility: direct-conversion-has-no-pairs), and of two tags
/// side by side the second one stays (kept for compatibility: direct-conversion-skips).
void ConvertMarkupDirect(App& app, TextControl& control);

enum class MarkupMode : std::uint8_t { Asked, Silent };

/// Turns tags into formatting in a pass for each. The user says whether all are meant or only that of the
/// list (`selected`), and is asked for each place if `confirm` says so. In the silent mode nobody is asked,
/// and the whole text gets a fixed height of lines.
void ConvertMarkupByTag(App& app, TextControl& control, bool confirm, int selected,
                        MarkupMode mode = MarkupMode::Asked);

} // namespace korvane
