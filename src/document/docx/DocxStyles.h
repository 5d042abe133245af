#pragma once

#include "document/docx/Properties.h"
#include "document/model/Document.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::doc::docx {

/// The styles of a document, and what they make of a paragraph.
class DocxStyles {
public:
    /// Reads the part with the styles.
    void Read(std::string_view xml);

    /// The look and the format of a paragraph of the style; of the usual one for an empty name.
    void Begin(const std::string& style, Document& document, Look& look, ParaState& para) const;
    /// What the style of characters changes.
    void Apply(const std::string& style, Document& document, Look& look) const;

private:
    struct Style {
        std::string basedOn;
        std::vector<StoredProperty> look;
        std::vector<StoredProperty> para;
        std::vector<StoredProperty> frame;
    };

    void ApplyLook(const Style& style, Document& document, Look& look) const;
    static void ApplyPara(const Style& style, ParaState& para);
    /// The style and those that it is based on, the last one first.
    std::vector<const Style*> ChainOf(const std::string& style) const;

    Style defaults_;
    std::map<std::string, Style> styles_;
    std::string usual_;
};

} // namespace korvane::doc::docx
