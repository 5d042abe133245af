#pragma once

#include "controls/views/Splitter.h"
#include "platform/qt/base/ControlAdaptor.h"

#include <QSplitter>

namespace korvane {

/// A splitter of two parts, of which the left one keeps its width when the window gets another size.
class SplitterAdaptor : public AdaptorOf<Splitter, QSplitter> {
public:
    SplitterAdaptor(Splitter& splitter, QSplitter& widget);

protected:
    void Write(Aspect aspect) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void WritePosition();
};

} // namespace korvane
