#pragma once

#include <QLabel>

namespace korvane {

/// A label whose letters are as large as its room allows.
class FillingLabel : public QLabel {
    Q_OBJECT

public:
    explicit FillingLabel(QWidget* parent = nullptr);

    /// The font in which the text fills the label. Digits all count alike, so that a clock's letters don't
    /// change their size with the time.
    QFont FillingFont() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace korvane
