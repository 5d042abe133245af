#include "text/words/WordIndex.h"

namespace korvane {

void WordIndex::Remove(TextView word) {
    const auto found = words_.find(word);
    if (found != words_.end()) words_.erase(found);
}

} // namespace korvane
