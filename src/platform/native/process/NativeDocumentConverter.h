#pragma once

#include "platform/DocumentConverter.h"

#include <filesystem>
#include <functional>
#include <string>

namespace korvane {

/// Starts other programs that know more formats, each in a folder of its own that is gone afterwards.
class NativeDocumentConverter final : public DocumentConverter {
public:
    /// Finds the file of a program; empty if it isn't installed.
    using Finder = std::function<std::filesystem::path(const std::string& name)>;

    /// Runs when another program begins. The result is asked many times a second until that ends; false ends
    /// it.
    using Wait = std::function<std::function<bool()>()>;

    NativeDocumentConverter(Finder find, Wait wait);

    std::optional<std::string> Convert(Conversion conversion, std::string_view bytes) override;
    std::string_view Missing(Conversion conversion) const override;

private:
    Finder find_;
    Wait wait_;
};

} // namespace korvane
