#include "ResidentMemory.h"

#include <cstdlib>
#include <fstream>
#include <string>

namespace korvane::bench {

long ResidentKilobytes() {
    std::ifstream pages("/proc/self/smaps_rollup");
    for (std::string word; pages >> word;)
        if (long kilobytes = 0; word == "Rss:" && pages >> kilobytes) return kilobytes;
    std::exit(1);
}

} // namespace korvane::bench
