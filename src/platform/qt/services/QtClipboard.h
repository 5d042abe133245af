#pragma once

#include "platform/Clipboard.h"

namespace korvane {

/// The desktop's clipboard. A text comes out with the same line ends with which it was put in.
class QtClipboard final : public Clipboard {
public:
    bool HasText() const override;
    Text GetText() const override;
    void SetText(Text text) override;
    void Clear() override;
    std::optional<std::string> GetRtf() const override;
};

} // namespace korvane
