#pragma once

#include "context/ports/SystemFileDialog.h"

namespace korvane {

/// Qt's dialog for one file. For a save it asks before an existing file is chosen.
class QtSystemFileDialog final : public SystemFileDialog {
public:
    std::optional<Text> Choose(const Request& request) override;
};

} // namespace korvane
