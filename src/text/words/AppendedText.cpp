#include "text/words/AppendedText.h"

#include "document/store/MemoryTextStore.h"
#include "text/commands/TextFileTypes.h"

namespace korvane {

AppendedText::AppendedText(TextFiles& files, TextView path)
    : files_(files),
      path_(path),
      format_(FileTypeForLoad(path)),
      text_(std::make_unique<doc::MemoryTextStore>()) {}

bool AppendedText::Load() {
    auto read = files_.Load(path_, format_);
    if (!read) return false;
    text_.SetWhole(std::move(read->document));
    return true;
}

void AppendedText::Write(TextView text, Place place) {
    text_.SetSelStart(place == Place::Beginning ? 0 : static_cast<int>(text_.All().size()));
    text_.SetSelText(text);
}

bool AppendedText::Save() const {
    return files_.Save(path_, format_, text_.Whole()) == TextSaving::Saved;
}

} // namespace korvane
