#include "files/lister/TypeImages.h"

#include "common/text/CaseFold.h"
#include "context/App.h"
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

TypeImages::TypeImages(const App& app) : types_(app.FileTypes()) {}

bool TypeImages::Prepare() {
    carries_.clear();
    return types_ == nullptr || types_->PrepareImages();
}

Text TypeImages::ImageOf(TextView path) {
    if (types_ == nullptr) return {};
    const FileType& type = types_->TypeOf(path);
    const auto met = carries_.try_emplace(&type, false);
    if (met.second) met.first->second = FindCarrying(type) != nullptr;
    return met.first->second ? CarriedImage(path, type) : type.image;
}

Text TypeImages::CarriedImage(TextView path, const FileType& type) {
    const Text own = types_->OwnImage(path);
    if (!own.empty()) return own;
    const TextView otherwise = FindCarrying(type)->otherwise;
    return otherwise.empty() ? type.image : Text(otherwise);
}

} // namespace korvane
