#pragma once

#include "controls/Tiles.h"
#include "platform/qt/base/ControlAdaptor.h"
#include "platform/qt/lists/TilesModel.h"

#include <QTableView>

namespace korvane {

/// Tiles in a table whose rows and columns share its size.
class TilesAdaptor : public AdaptorOf<Tiles, QTableView> {
public:
    TilesAdaptor(Tiles& tiles, QTableView& widget);

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;

private:
    void LayOut();
    void ListenToUser();
    void ShowCurrent();
    void TakeCurrent(const QModelIndex& index);

    TilesModel& model_;
    bool writing_ = false;
};

} // namespace korvane
