#include "platform/qt/tiles/TilesAdaptor.h"

namespace korvane {

TilesAdaptor::TilesAdaptor(Tiles& tiles, TilesView& widget) : AdaptorOf(tiles, widget) {
    widget.Show(&tiles);
    widget.Chosen = [this](int tile) { control_.Select(tile); };
    widget.DoubleClicked = [this](int tile) { control_.DoubleClick(tile); };
    widget.PointedAt = [this](int tile) { control_.PointAt(tile); };
}

void TilesAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Items || aspect == Aspect::Range) widget_.TellChanged();
    if (aspect == Aspect::Selection) widget_.TellCurrentChanged();
    AdaptorOf::Write(aspect);
}

void TilesAdaptor::Deafen() {
    AdaptorOf::Deafen();
    widget_.Chosen = widget_.DoubleClicked = widget_.PointedAt = nullptr;
    widget_.Show(nullptr);
}

} // namespace korvane
