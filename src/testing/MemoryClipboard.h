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
    void SetText(Text text) override {
        Clear();
        text_ = std::move(text);
    }
    void Clear() override {
        text_.reset();
        rtf_.reset();
    }
    std::optional<std::string> GetRtf() const override { return rtf_; }

    /// Adds the contents as RTF to those as text.
    void AddRtf(std::string rtf) { rtf_ = std::move(rtf); }

private:
    std::optional<Text> text_;
    std::optional<std::string> rtf_;
};

} // namespace korvane
