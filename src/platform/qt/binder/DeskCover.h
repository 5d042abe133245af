#pragma once

#include <QObject>
#include <QWidget>
#include <memory>
#include <vector>

namespace korvane {

/// Keeps a window above all others, gives it the keyboard, and covers the other screens while it is shown. It
/// belongs to windows whose look has the property `coversTheDesk`.
class DeskCover : public QObject {
public:
    explicit DeskCover(QWidget& window);
    ~DeskCover() override;

    /// Covers these places on the other screens.
    void Cover(const QList<QRect>& places);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CoverOtherScreens();
    void FollowScreens();
    void OfWindow(const QEvent& event);
    void OfCover(QEvent& event);
    void StayAbove();

    QWidget& window_;
    std::vector<std::unique_ptr<QWidget>> covers_;
};

} // namespace korvane
