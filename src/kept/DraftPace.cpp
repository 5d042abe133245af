#include "kept/DraftPace.h"

#include <algorithm>

namespace korvane {

void DraftPace::Changed(Time now) {
    if (!firstChange_) firstChange_ = now;
    lastChange_ = now;
}

void DraftPace::Begin(Time now) {
    firstChange_.reset();
    lastDraft_ = now;
    notBefore_ = now + kBetween;
}

void DraftPace::Took(Time work) {
    notBefore_ = std::max(notBefore_, lastDraft_ + kLeastRest * work);
}

std::optional<DraftPace::Time> DraftPace::Due() const {
    if (!firstChange_) return std::nullopt;
    return std::max(notBefore_, std::min(lastChange_ + kAfterLastChange, *firstChange_ + kBetween));
}

} // namespace korvane
