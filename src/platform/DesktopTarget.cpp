#include "platform/DesktopTarget.h"

#include "common/text/CaseFold.h"

namespace korvane {

DesktopTarget TargetOf(const OpenRequest& request) {
    using Kind = DesktopTarget::Kind;
    if (!EqualIgnoringCase(request.file, kFileManager)) return {Kind::Path, request.file};
    if (request.parameters.empty()) return {Kind::Home, {}};
    if (request.parameters == kRecycleStoreParameters) return {Kind::RecycleStore, {}};
    return {Kind::Path, request.parameters};
}

} // namespace korvane
