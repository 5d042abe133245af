#pragma once

#include "platform/Clipboard.h"

#include <optional>
#include <utility>

namespace korvane {

/// A clipboard of its own, which starts without text.
class MemoryClipboard final : public Clipboard {
public:
    bool HasText() const override { return text_.has_value(); }
    Text GetText() const override { return text_.value_or(Text()); }
    void SetText(Text text) override { text_ = std::move(text); }
    void Clear() override { text_.reset(); }

private:
    std::optional<Text> text_;
};

} // namespace korvane
