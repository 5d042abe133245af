#pragma once

#include "platform/qt/tabs/TabBar.h"

#include <QLabel>
#include <QStackedWidget>
#include <QWidget>

namespace korvane {

/// A strip of tabs above their pages. While there is no tab, a hint is shown, with a child widget of the name
/// "plainStart" below it.
class TabPages : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString emptyHint READ EmptyHint WRITE SetEmptyHint)

public:
    explicit TabPages(QWidget* parent = nullptr);

    TabBar& Tabs() { return *tabs_; }
    int Count() const { return tabs_->count(); }
    QWidget* Page(int index) const { return pages_.at(index); }
    int IndexOf(const QWidget* page) const { return static_cast<int>(pages_.indexOf(page)); }
    /// The caller keeps the page.
    void Add(QWidget& page, const QString& caption);
    void Remove(int index);
    void SetCaption(int index, const QString& caption);
    void SetToolTip(int index, const QString& toolTip);
    void ShowPage(int index);

    QString EmptyHint() const { return hint_->text(); }
    void SetEmptyHint(const QString& hint) { hint_->setText(hint); }

protected:
    bool event(QEvent* event) override;

private:
    void TakeStart();
    void BringToFront(QWidget& page);

    TabBar* tabs_;
    QStackedWidget* stack_;
    QWidget* empty_;
    QLabel* hint_;
    QList<QWidget*> pages_;
};

} // namespace korvane
