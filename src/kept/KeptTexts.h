#pragma once

#include "context/ports/TextKeeper.h"

namespace korvane {

class FileSystem;

/// Keeps texts in the folder of all that is kept, each in a folder of its own.
class KeptTexts final : public TextKeeper {
public:
    /// `root` needn't be there; nothing is kept when it is empty. The disk outlives the object.
    KeptTexts(FileSystem& files, TextView root);

    /// Looks for what earlier runs have left.
    void LookForUnsaved();

    Text Keep(const Text& file, const Text& name, std::string_view rtf) override;
    void Forget(const Text& file) override;
    const std::vector<UnsavedText>& Unsaved() const override { return unsaved_; }
    void Adopt(const Text& file) override;

private:
    Text NewFolder() const;
    void LookInto(const Text& folder);

    FileSystem& files_;
    /// Empty when nothing is kept.
    Text folder_;
    std::vector<UnsavedText> unsaved_;
};

} // namespace korvane
