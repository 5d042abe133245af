#include "shell/main/ButtonText.h"

namespace korvane {

Text ButtonText(TextView text) {
    Text doubled;
    for (const char16_t character : text)
        doubled.append(character == u'&' ? 2 : 1, character);
    return doubled;
}

} // namespace korvane
