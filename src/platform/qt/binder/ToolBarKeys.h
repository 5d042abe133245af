#pragma once

#include <QList>
#include <QObject>

class QToolBar;
class QToolButton;

namespace korvane {

/// Lets the keyboard into a tool bar: the Tab key comes to one of its buttons, and the arrow keys, Home and
/// End go to the others. A click still leaves the keyboard where it is.
class ToolBarKeys : public QObject {
public:
    explicit ToolBarKeys(QToolBar& bar);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QList<QToolButton*> Buttons() const;
    QList<QToolButton*> Usable() const;
    void ComeFirst();
    bool KeyPressed(QToolButton& button, int key);
    void StopAt(const QToolButton& stop);
    void KeepStop();

    QToolBar& bar_;
};

} // namespace korvane
