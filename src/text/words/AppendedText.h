#pragma once

#include "controls/text/TextFiles.h"
#include "document/editing/TextEditing.h"

#include <cstdint>

namespace korvane {

/// A file of any format that a text control reads, to which a text is added.
class AppendedText {
public:
    enum class Place : std::uint8_t { Beginning, End };

    /// `files` outlives the object.
    AppendedText(TextFiles& files, TextView path);

    /// False when the file can't be read.
    bool Load();
    void Write(TextView text, Place place);
    /// Saves in the format in which the file was read; false when it can't be written.
    bool Save() const;

private:
    TextFiles& files_;
    Text path_;
    int format_;
    doc::TextEditing text_;
};

} // namespace korvane
