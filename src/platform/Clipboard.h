#pragma once

#include "common/text/Text.h"

namespace korvane {

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual bool HasText() const = 0;
    /// With the line ends that the program gave it that put it there: on some systems LF alone.
    virtual Text GetText() const = 0;
    virtual void SetText(Text text) = 0;
    virtual void Clear() = 0;
};

} // namespace korvane
