#pragma once

#include "platform/qt/grid/GridView.h"

#include <QStringList>

namespace korvane {

/// A grid of one column that looks like a bar of large buttons, with an icon above the text of each row.
class SideBarView : public GridView {
    Q_OBJECT
    /// The names of the icons, one for each row.
    Q_PROPERTY(QStringList rowIcons READ RowIcons WRITE SetRowIcons)

public:
    explicit SideBarView(QWidget* parent = nullptr);

    QStringList RowIcons() const { return rowIcons_; }
    void SetRowIcons(const QStringList& names) { rowIcons_ = names; }
    bool IsBar() const override { return true; }

protected:
    std::unique_ptr<CellDelegate> MakeDelegate(const GridModel& model, const GridBox& box) override;

private:
    QStringList rowIcons_;
};

} // namespace korvane
