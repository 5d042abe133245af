#pragma once

#include "controls/views/PictureBox.h"
#include "platform/qt/base/ControlAdaptor.h"
#include "platform/qt/picture/PictureView.h"

namespace korvane {

class PictureAdaptor : public AdaptorOf<PictureBox, PictureView> {
public:
    using AdaptorOf::AdaptorOf;

protected:
    void Write(Aspect aspect) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace korvane
