#pragma once

#include "platform/DocumentConverter.h"

#include <map>

namespace korvane {

/// Knows of each conversion what a test told it, and remembers what it got.
class MemoryDocumentConverter final : public DocumentConverter {
public:
    std::map<Conversion, std::string> outcomes;
    std::map<Conversion, std::string> got;

    /// The program that isn't there for the conversions without an outcome.
    std::string missing;

    std::optional<std::string> Convert(Conversion conversion, std::string_view bytes) override {
        got[conversion] = bytes;
        const auto found = outcomes.find(conversion);
        return found == outcomes.end() ? std::nullopt : std::optional(found->second);
    }
    std::string_view Missing(Conversion conversion) const override {
        return outcomes.contains(conversion) ? std::string_view() : missing;
    }
};

} // namespace korvane
