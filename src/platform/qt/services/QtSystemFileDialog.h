#pragma once

#include "context/ports/SystemFileDialog.h"

namespace korvane {

/// The toolkit's dialog for one file. A save asks before it takes the name of a file that is there.
class QtSystemFileDialog final : public SystemFileDialog {
public:
    std::optional<Text> Choose(const Request& request) override;
};

} // namespace korvane
