#include "document/model/ParaFormat.h"

namespace korvane::doc {

std::size_t HashOf(const ParaFormat& format) {
    std::size_t hash = static_cast<std::size_t>(format.alignment);
    for (const std::int32_t length :
         {format.left, format.right, format.first, format.before, format.after, format.spacingPercent,
          format.spacingExact, format.frameDistance, format.frameWidth, format.list.start})
        Mix(hash, length);
    Mix(hash, format.frame | format.pageBreakBefore << 16);
    Mix(hash, static_cast<std::size_t>(format.list.kind) << 8 | format.list.level);
    Mix(hash, format.list.list);
    for (const TabStop& stop : format.tabs) {
        Mix(hash, stop.at);
        Mix(hash, static_cast<int>(stop.type));
    }
    return hash;
}

} // namespace korvane::doc
