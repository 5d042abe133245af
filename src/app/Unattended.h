#pragma once

#include "platform/MessageBoxes.h"

namespace korvane {

/// Message boxes of a run without a user: each is printed to the standard error stream and answered as Esc
/// would.
class PrintedMessages final : public MessageBoxes {
public:
    Answer Show(const Message& message) override;
};

} // namespace korvane
