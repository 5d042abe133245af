#pragma once

#include "platform/Clipboard.h"

namespace korvane {

/// The desktop's clipboard. What other programs put there with bare line feeds is read with CR LF.
class QtClipboard final : public Clipboard {
public:
    bool HasText() const override;
    Text GetText() const override;
    void SetText(Text text) override;
    void Clear() override;
};

} // namespace korvane
