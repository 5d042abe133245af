#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace korvane::doc {

/// The attributes of an element.
class XmlAttributes {
public:
    explicit XmlAttributes(const char** pairs) : pairs_(pairs) {}

    /// The value of the attribute with this name, whatever its prefix; nothing if there is none.
    std::optional<std::string_view> Find(std::string_view name) const;
    std::string_view Get(std::string_view name) const { return Find(name).value_or(std::string_view()); }
    /// Calls `show` with each name, as it is written, and its value.
    template <class Show>
    void ForEach(const Show& show) const {
        for (const char** pair = pairs_; *pair != nullptr; pair += 2)
            show(pair[0], pair[1]);
    }
    /// The leading whole number of the value; nothing without one.
    std::optional<int> Number(std::string_view name) const;

private:
    const char** pairs_;
};

/// What is called for the parts of an XML text. Names come without their prefix.
struct XmlHandlers {
    std::function<void(std::string_view name, const XmlAttributes& attributes)> open;
    std::function<void(std::string_view name)> close;
    std::function<void(std::string_view utf8)> text = [](std::string_view) {};
    /// Asked before each element; true ends the reading.
    std::function<bool()> full = [] { return false; };
};

enum class XmlOutcome { Whole, Damaged, TooDeep, Forbidden };

/// Goes through an XML text. A text with a document type is refused, since only such a one can define
/// entities, and so is one that is deeper than 256 elements.
XmlOutcome ReadXml(std::string_view bytes, const XmlHandlers& handlers);

/// Adds the text with its special characters as references. Characters that XML can't hold are left out.
void PutXml(std::string& out, std::u16string_view text);

} // namespace korvane::doc
