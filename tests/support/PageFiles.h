#pragma once

#include "common/text/CodePage.h"
#include "context/App.h"
#include "controls/text/TextFiles.h"
#include "document/html/Html.h"
#include "document/plain/Plain.h"

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

/// Reads pages and plain texts, and writes nothing.
class PageFiles final : public TextFiles {
public:
    explicit PageFiles(App& app) { app.SetPort<TextFiles>(this); }

    std::optional<doc::ReadResult> Load(TextView, int) override { return std::nullopt; }
    TextSaving Save(TextView, int, const doc::Document&) override { return TextSaving::NotMade; }
    Text Needed(int, FileUse) const override { return {}; }
    std::optional<doc::ReadResult> Read(std::string_view bytes, int format) override {
        return format == TextFormat::Html ? doc::ReadHtml(bytes)
                                          : doc::ReadPlain(bytes, CodePage::Windows1252());
    }
    std::optional<std::string> Written(const doc::Document&, int) override { return std::nullopt; }
};

} // namespace korvane
