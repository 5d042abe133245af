#pragma once

#include "context/exchange/ListerRequest.h"

namespace korvane {

/// Lets the user choose files by the request block; returns when the choice is made or cancelled.
class FilePicker {
public:
    virtual ~FilePicker() = default;
    virtual void Choose(ListerRequest& request) = 0;
};

} // namespace korvane
