#include "common/path/CommandWords.h"

#include <utility>

namespace korvane {

std::vector<Text> SplitCommandLine(TextView line) {
    std::vector<Text> words;
    Text word;
    bool inWord = false;
    bool inQuotes = false;
    for (const char16_t character : line) {
        if (character == u'"') {
            inQuotes = !inQuotes;
            inWord = true;
        } else if (character == u' ' && !inQuotes) {
            if (inWord) words.push_back(std::exchange(word, {}));
            inWord = false;
        } else {
            word += character;
            inWord = true;
        }
    }
    if (inWord) words.push_back(std::move(word));
    return words;
}

} // namespace korvane
