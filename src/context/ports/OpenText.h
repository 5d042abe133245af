#pragma once

namespace korvane {

class TextControl;

/// The controls of the text window. The port has them while that window is open.
struct OpenText {
    TextControl& ThisTextCtrl;
    /// For texts on their way, which nobody sees.
    TextControl& rtfTempText;
};

} // namespace korvane
