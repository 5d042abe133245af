#include "files/lister/rows/TypeImages.h"

#include "common/text/CaseFold.h"
#include "context/App.h"
#include "platform/FileSystem.h"
#include "platform/FileTypes.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

struct CarryingType {
    /// In small letters.
    TextView name;
    /// Of a file that carries none after all; empty for that of its type.
    TextView otherwise;
};

// In the two languages in which these names are known.
constexpr TextView kProgramImage = u"DOSExeIcon";
constexpr std::array<CarryingType, 4> kCarryingTypes{{
    {u"application", kProgramImage},
    {u"shortcut", u""},
    {u"приложение", kProgramImage},
    {u"ярлык", u""},
}};

const CarryingType* FindCarrying(const FileType& type) {
    const auto* found = std::ranges::find(kCarryingTypes, TextView(ToLower(type.name)), &CarryingType::name);
    return found == kCarryingTypes.end() ? nullptr : found;
}

} // namespace

TypeImages::TypeImages(const App& app) : app_(app), types_(app.FileTypes()) {}

bool TypeImages::Prepare() {
    carries_.clear();
    return types_ == nullptr || types_->PrepareImages();
}

const Text& TypeImages::ImageOf(TextView folder, TextView name) {
    static const Text kNone;
    if (types_ == nullptr) return kNone;
    const FileType& type = types_->TypeOf(name);
    const auto met = carries_.try_emplace(&type, false);
    if (met.second) met.first->second = FindCarrying(type) != nullptr;
    return met.first->second ? CarriedImage(app_.Files().Style().JoinPath(folder, name), type) : type.image;
}

const Text& TypeImages::CarriedImage(TextView path, const FileType& type) {
    carried_ = types_->OwnImage(path);
    if (carried_.empty()) carried_ = FindCarrying(type)->otherwise;
    return carried_.empty() ? type.image : carried_;
}

} // namespace korvane
