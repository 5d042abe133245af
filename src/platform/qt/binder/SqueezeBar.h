#pragma once

#include <QStringList>
#include <QWidget>

namespace korvane {

/// A row of tools that adapts to a narrow window: first its buttons lose their texts, then some of its parts
/// are hidden.
class SqueezeBar : public QWidget {
    Q_OBJECT
    /// The names of the parts that may be hidden, in the order in which they are hidden.
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
