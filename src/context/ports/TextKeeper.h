#pragma once

#include "common/number/DateTime.h"
#include "common/text/Text.h"

#include <functional>
#include <string_view>
#include <vector>

namespace korvane {

/// A text that was kept because the program had to end before anybody could be asked about its changes.
struct UnsavedText {
    /// The path of the text's own file, or its caption where it never had one.
    Text name;
    /// Where it is kept, as RTF.
    Text file;
    DateTime changed;
};

/// Keeps texts from one run of the program to the next.
class TextKeeper {
public:
    virtual ~TextKeeper() = default;

    /// Keeps the text in place of what is kept in `file`, which is empty the first time. Returns the file in
    /// which it is now, or an empty path when it can't be kept.
    virtual Text Keep(const Text& file, const Text& name, std::string_view rtf) = 0;
    /// The text has been saved, or isn't wanted.
    virtual void Forget(const Text& file) = 0;

    /// What the last run has left, the newest first.
    virtual const std::vector<UnsavedText>& Unsaved() const = 0;
    /// The text is in a window now. What is kept of it stays, but isn't in the list any more.
    virtual void Adopt(const Text& file) = 0;
    /// The list changed.
    std::function<void()> UnsavedChanged;
};

} // namespace korvane
