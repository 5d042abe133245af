#pragma once

#include <QStringList>
#include <QWidget>

namespace korvane {

/// A row of tools that stays whole where it is wide, and where it is narrow gives way instead of crowding:
/// its buttons lose their texts first, then it does without some of its parts.
class SqueezeBar : public QWidget {
    Q_OBJECT
    /// The names of the parts that it can do without, the first to go first.
    Q_PROPERTY(QStringList givesWay READ GivesWay WRITE SetGivesWay)

public:
    using QWidget::QWidget;

    QStringList GivesWay() const { return givesWay_; }
    void SetGivesWay(const QStringList& names) { givesWay_ = names; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Fit();
    bool Fits() const;
    void ShowTexts(bool shown);

    QStringList givesWay_;
};

} // namespace korvane
