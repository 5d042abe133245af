#pragma once

#include "context/ports/FilePicker.h"

namespace korvane {

/// Lets the user choose files in the dialog of the desktop.
class QtFilePicker final : public FilePicker {
public:
    void Choose(ListerRequest& request) override;
};

} // namespace korvane
