#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <optional>

namespace korvane {

/// The system's own dialog for choosing one file.
class SystemFileDialog {
public:
    enum class Purpose : std::uint8_t { Open, Save };
    struct Request {
        Purpose purpose = Purpose::Open;
        /// Pairs of a name and its patterns, all separated by bars: "Programs (*.exe)|*.exe".
        Text filter;
        Text title;
        /// The name offered; empty for none.
        Text name{};
        /// What a chosen name without an extension gets ("xls"); empty for nothing.
        Text defaultExtension{};
        /// Where the dialog starts; when empty, where it was left last.
        Text folder{};

        bool operator==(const Request&) const = default;
    };

    virtual ~SystemFileDialog() = default;
    /// The path of the chosen file; nothing on a cancel.
    virtual std::optional<Text> Choose(const Request& request) = 0;
};

} // namespace korvane
