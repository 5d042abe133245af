#include "app/Unattended.h"

#include <cstdio>

namespace korvane {

Answer PrintedMessages::Show(const Message& message) {
    std::fprintf(stderr, "%s\n", ToUtf8(message.text).c_str());
    switch (message.buttons) {
    case MessageButtons::YesNo:
        return Answer::No;
    case MessageButtons::YesNoCancel:
    case MessageButtons::OkCancel:
        return Answer::Cancel;
    case MessageButtons::Ok:
        break;
    }
    return Answer::Ok;
}

} // namespace korvane
