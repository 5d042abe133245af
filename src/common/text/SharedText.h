#pragma once

#include "common/text/Text.h"

#include <memory>
#include <utility>

namespace korvane {

/// A text that doesn't change. Copies share its characters, however many there are.
class SharedText {
public:
    SharedText() : SharedText(Text()) {}
    SharedText(Text text) : text_(std::make_shared<const Text>(std::move(text))) {}
    SharedText(TextView text) : SharedText(Text(text)) {}
    SharedText(const char16_t* text) : SharedText(Text(text)) {}

    const Text& Whole() const { return *text_; }
    operator TextView() const { return *text_; }

    friend bool operator==(const SharedText& a, const SharedText& b) {
        return a.text_ == b.text_ || *a.text_ == *b.text_;
    }

private:
    std::shared_ptr<const Text> text_;
};

} // namespace korvane
