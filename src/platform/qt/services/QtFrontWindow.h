#pragma once

#include "context/ports/FrontWindow.h"

namespace korvane {

class QtFrontWindow final : public FrontWindow {
public:
    void PressDown() override;
};

} // namespace korvane
