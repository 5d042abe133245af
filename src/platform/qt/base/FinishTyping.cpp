#include "platform/qt/base/FinishTyping.h"

#include <QApplication>
#include <QWidget>

namespace korvane {

void FinishTyping() {
    if (auto* field = dynamic_cast<UnfinishedField*>(QApplication::focusWidget())) field->Commit();
}

} // namespace korvane
