#pragma once

#include "platform/qt/base/ControlAdaptor.h"
#include "platform/qt/grid/GridView.h"

namespace korvane {

class GridAdaptor : public AdaptorOf<GridBox, GridView> {
public:
    GridAdaptor(GridBox& box, GridView& view) : AdaptorOf(box, view) { view.Attach(box); }

protected:
    void Write(Aspect aspect) override {
        switch (aspect) {
        case Aspect::Colours:
        case Aspect::Pointer:
        case Aspect::Font:
            widget_.ReadLook();
            break;
        case Aspect::Text:
            widget_.viewport()->update();
            break;
        default:
            AdaptorOf::Write(aspect);
        }
    }
    void Deafen() override {
        AdaptorOf::Deafen();
        widget_.Forget();
    }
    void LetGo() override { widget_.Detach(); }
};

} // namespace korvane
