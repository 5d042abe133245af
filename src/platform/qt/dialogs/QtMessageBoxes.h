#pragma once

#include "platform/MessageBoxes.h"

namespace korvane {

class QtMessageBoxes final : public MessageBoxes {
public:
    Answer Show(const Message& message) override;
};

} // namespace korvane
