#include "document/docx/DocxStyles.h"

namespace korvane::doc::docx {

namespace {

constexpr std::size_t kLongestChain = 16;

} // namespace

void DocxStyles::Read(std::string_view xml) {
    Style* style = nullptr;
    std::vector<StoredProperty> ignored;
    std::vector<std::string> open;
    XmlHandlers handlers;
    handlers.open = [&](std::string_view name, const XmlAttributes& attributes) {
        const std::string parent = open.empty() ? std::string() : open.back();
        open.emplace_back(name);
        if (name == "docDefaults") style = &defaults_;
        if (name == "style") {
            const std::string id(attributes.Get("styleId"));
            style = &styles_[id];
            const std::string_view usual = attributes.Get("default");
            if (attributes.Get("type") == "paragraph" && (usual == "1" || usual == "true")) usual_ = id;
        }
        if (style == nullptr) return;
        if (name == "basedOn")
            style->basedOn = attributes.Get("val");
        else if (parent == "rPr")
            style->look.emplace_back(name, attributes);
        else if (parent == "pBdr")
            style->frame.emplace_back(name, attributes);
        else if (parent == "pPr" || parent == "tabs" || parent == "numPr")
            style->para.emplace_back(name, attributes);
    };
    handlers.close = [&](std::string_view name) {
        if (name == "style" || name == "docDefaults") style = nullptr;
        if (!open.empty()) open.pop_back();
    };
    ReadXml(xml, handlers);
}

std::vector<const DocxStyles::Style*> DocxStyles::ChainOf(const std::string& style) const {
    std::vector<const Style*> chain;
    std::string name = style;
    while (chain.size() < kLongestChain) {
        const auto found = styles_.find(name);
        if (found == styles_.end()) break;
        chain.insert(chain.begin(), &found->second);
        name = found->second.basedOn;
    }
    return chain;
}

void DocxStyles::ApplyLook(const Style& style, Document& document, Look& look) const {
    for (const StoredProperty& property : style.look)
        property.With([&](const XmlAttributes& attributes) {
            ApplyToLook(property.Element(), attributes, document, look);
        });
}

void DocxStyles::ApplyPara(const Style& style, ParaState& para) {
    for (const StoredProperty& property : style.para)
        property.With(
            [&](const XmlAttributes& attributes) { ApplyToPara(property.Element(), attributes, para); });
    for (const StoredProperty& property : style.frame)
        property.With([&](const XmlAttributes& attributes) {
            ApplyFrameSide(property.Element(), attributes, para.format);
        });
}

void DocxStyles::Begin(const std::string& style, Document& document, Look& look, ParaState& para) const {
    // Without a word about it, letters have ten points.
    look = {};
    look.halfPoints = 20;
    para = {};
    std::vector<const Style*> chain = ChainOf(style.empty() || !styles_.contains(style) ? usual_ : style);
    chain.insert(chain.begin(), &defaults_);
    for (const Style* part : chain) {
        ApplyLook(*part, document, look);
        ApplyPara(*part, para);
    }
}

void DocxStyles::Apply(const std::string& style, Document& document, Look& look) const {
    for (const Style* part : ChainOf(style))
        ApplyLook(*part, document, look);
}

} // namespace korvane::doc::docx
