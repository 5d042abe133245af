#include "platform/qt/webengine/QtWebEngine.h"

#include <QtGlobal>

extern "C" Q_DECL_EXPORT korvane::WebEngine* MakeKorvaneWebEngine(const korvane::WebEngineSeat& seat);

korvane::WebEngine* MakeKorvaneWebEngine(const korvane::WebEngineSeat& seat) {
    return std::make_unique<korvane::QtWebEngine>(seat).release();
}
