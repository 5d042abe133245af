#pragma once

#include "controls/lists/Tiles.h"
#include "platform/qt/base/ControlAdaptor.h"
#include "platform/qt/tiles/TilesView.h"

namespace korvane {

class TilesAdaptor : public AdaptorOf<Tiles, TilesView> {
public:
    TilesAdaptor(Tiles& tiles, TilesView& widget);

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;
};

} // namespace korvane
