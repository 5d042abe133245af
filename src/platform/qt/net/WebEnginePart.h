#pragma once

#include "platform/WebEngine.h"

#include <functional>

class QWidget;

namespace korvane {

/// What an engine needs of the window that shows its pages.
struct WebEngineSeat {
    /// The widget that the page is to fill; nullptr while the window isn't on the screen.
    std::function<QWidget*()> place;
    std::function<void()> begins;
    std::function<void()> completes;
};

/// The only thing that the program knows of the part by name.
inline constexpr auto kMakeWebEngine = "MakeKorvaneWebEngine";
/// The caller owns the engine.
using MakeWebEngine = WebEngine* (*)(const WebEngineSeat& seat);

} // namespace korvane
