#pragma once

#include "common/text/Text.h"

#include <optional>
#include <string>

namespace korvane {

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual bool HasText() const = 0;
    /// The line ends are those of the program that put the text there: on some systems LF alone.
    virtual Text GetText() const = 0;
    virtual void SetText(Text text) = 0;
    virtual void Clear() = 0;
    /// The contents as RTF; nothing when no program put such there.
    virtual std::optional<std::string> GetRtf() const { return std::nullopt; }
};

} // namespace korvane
