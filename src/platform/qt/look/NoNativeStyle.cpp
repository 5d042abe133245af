#include "platform/qt/look/NativeStyle.h"

namespace korvane {

std::unique_ptr<QStyle> NewNativeStyle() {
    return nullptr;
}

} // namespace korvane
