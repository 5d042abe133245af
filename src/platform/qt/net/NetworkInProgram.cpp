#include "platform/qt/net/NetworkPart.h"

extern "C" korvane::Network* MakeKorvaneNetwork();

namespace korvane {

MakeNetwork FindNetworkPart(const QString&) {
    return MakeKorvaneNetwork;
}

} // namespace korvane
