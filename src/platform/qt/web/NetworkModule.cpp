// The only thing that the program knows of this library by name.

#include "platform/qt/web/QtNetwork.h"

#include <QtGlobal>

extern "C" Q_DECL_EXPORT korvane::Network* MakeKorvaneNetwork();

korvane::Network* MakeKorvaneNetwork() {
    return std::make_unique<korvane::QtNetwork>().release();
}
