#pragma once

#include <QFutureWatcher>
#include <QImage>
#include <QWidget>
#include <atomic>
#include <memory>

namespace korvane {

/// Paints the picture in a file on a black ground. The file is read in a thread of its own, in the size in
/// which it is painted, so that the ground is there at once however large the picture is.
class PictureView : public QWidget {
    Q_OBJECT

public:
    explicit PictureView(QWidget* parent = nullptr);
    ~PictureView() override;

    /// An empty path shows the ground alone.
    void SetFile(const QString& path);
    /// Where the picture is painted.
    void SetPlace(const QRect& place);

    /// Whether the picture that is wanted is painted, or can't be.
    bool IsReady() const { return wanted_ == read_; }

signals:
    /// The picture was read, or it is known that it can't be.
    void Ready();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Source {
        QString path;
        QSize size;
        bool operator==(const Source&) const = default;
    };

    void Want();
    void Read();
    void Take();

    QString path_;
    QRect place_;
    /// What is to be painted, what the thread reads, and what `picture_` is.
    Source wanted_;
    Source reading_;
    Source read_;
    QImage picture_;
    QFutureWatcher<QImage> watcher_;
    /// Tells the thread that nobody waits for it any more.
    std::shared_ptr<std::atomic_bool> givenUp_;
};

} // namespace korvane
