#include "platform/qt/net/NetworkPart.h"

#include <QLibrary>

namespace korvane {

MakeNetwork FindNetworkPart(const QString& path) {
    // The library stays loaded to the end, because what it made lives as long.
    QLibrary library(path);
    return reinterpret_cast<MakeNetwork>(library.resolve(kMakeNetwork));
}

} // namespace korvane
