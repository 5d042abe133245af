#pragma once

#include <QStyle>
#include <memory>

namespace korvane {

/// Qt's style that draws controls as the system does; nullptr where there is none.
std::unique_ptr<QStyle> NewNativeStyle();

} // namespace korvane
