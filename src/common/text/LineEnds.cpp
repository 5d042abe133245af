#include "common/text/LineEnds.h"

namespace korvane {

Text WithCrLf(TextView text) {
    Text result;
    result.reserve(text.size());
    std::size_t copied = 0;
    for (std::size_t at = text.find(u'\n'); at != TextView::npos; at = text.find(u'\n', at + 1)) {
        if (at > 0 && text[at - 1] == u'\r') continue;
        result.append(text.substr(copied, at - copied)).append(kCrLf);
        copied = at + 1;
    }
    return result.append(text.substr(copied));
}

} // namespace korvane
