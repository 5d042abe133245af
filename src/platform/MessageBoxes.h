#pragma once

#include "common/text/Text.h"

#include <compare>
#include <cstdint>

namespace korvane {

enum class MessageIcon : std::uint8_t { None, Information, Question, Exclamation, Stop };
enum class MessageButtons : std::uint8_t { Ok, YesNo, YesNoCancel, OkCancel };
enum class Answer : std::uint8_t { Ok, Yes, No, Cancel };

/// One message box: its title is the program's name.
struct Message {
    Text text;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    /// The button that Return presses, counted from 1 on the left.
    int defaultButton = 1;

    bool operator==(const Message&) const = default;
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    /// Shows the box and returns when it is answered. Esc and the close box answer Cancel, or No where there
    /// is no Cancel, or Ok where there is nothing else.
    virtual Answer Show(const Message& message) = 0;
};

} // namespace korvane
