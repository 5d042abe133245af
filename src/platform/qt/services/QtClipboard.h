#pragma once

#include "platform/Clipboard.h"

namespace korvane {

/// The desktop's clipboard. Texts come out with the line ends with which they were put in.
class QtClipboard final : public Clipboard {
public:
    bool HasText() const override;
    Text GetText() const override;
    void SetText(Text text) override;
    void Clear() override;
};

} // namespace korvane
