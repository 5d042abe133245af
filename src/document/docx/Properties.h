#pragma once

#include "document/model/Document.h"
#include "document/package/Xml.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::doc::docx {

/// The format of a paragraph as its properties tell it.
struct ParaState {
    ParaFormat format{};
    int list = 0;
    int level = 0;
};

/// The format of characters as its properties tell it. Those of East Asia may have a font of their own.
struct Look : CharFormat {
    std::optional<std::uint16_t> eastAsiaFont{};
};

/// Applies the property of characters that the element tells. Fonts are added to the document.
void ApplyToLook(std::string_view element, const XmlAttributes& attributes, Document& document, Look& look);

/// Applies the property of a paragraph that the element tells.
void ApplyToPara(std::string_view element, const XmlAttributes& attributes, ParaState& para);

/// Applies a side of a paragraph's frame.
void ApplyFrameSide(std::string_view element, const XmlAttributes& attributes, ParaFormat& format);

/// The width of a line in twips, 0 for none.
int LineWidth(const XmlAttributes& attributes);
/// A colour in hexadecimal; nothing set for "auto" and what makes no sense.
Colour ColourOf(std::string_view value);
/// Whether the property is on.
bool IsOn(const XmlAttributes& attributes);
int Bounded(int length);

/// An element that is kept to be applied later.
class StoredProperty {
public:
    StoredProperty(std::string_view element, const XmlAttributes& attributes);

    const std::string& Element() const { return element_; }
    /// Calls `use` with the attributes.
    template <class Use>
    void With(const Use& use) const {
        std::vector<const char*> pairs;
        for (const std::string& part : parts_)
            pairs.push_back(part.c_str());
        pairs.push_back(nullptr);
        use(XmlAttributes(pairs.data()));
    }

private:
    std::string element_;
    std::vector<std::string> parts_;
};

} // namespace korvane::doc::docx
