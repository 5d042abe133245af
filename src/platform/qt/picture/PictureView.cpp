#include "platform/qt/picture/PictureView.h"

#include "platform/qt/picture/ReadPicture.h"

#include <QPainter>
#include <QPromise>
#include <QThreadPool>
#include <new>

namespace korvane {

namespace {

/// Nothing also when the memory isn't enough, which would otherwise end the program in a thread.
QImage ReadOrNothing(const QString& path, const QSize& size, const std::atomic_bool& givenUp) {
    try {
        return ReadPicture(path, size, givenUp);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&watcher_, &QFutureWatcher<QImage>::finished, this, &PictureView::Take);
}

PictureView::~PictureView() {
    if (givenUp_) *givenUp_ = true;
}

void PictureView::SetFile(const QString& path) {
    path_ = path;
    picture_ = {};
    read_ = {};
    Want();
}

void PictureView::SetPlace(const QRect& place) {
    place_ = place;
    Want();
}

/// A window that opens tells several sizes before it has its own, and only the last of them is read.
void PictureView::Want() {
    update();
    Source wanted;
    if (!path_.isEmpty() && !place_.isEmpty()) wanted = {path_, place_.size() * devicePixelRatio()};
    if (wanted == wanted_) return;
    wanted_ = wanted;
    QMetaObject::invokeMethod(this, &PictureView::Read, Qt::QueuedConnection);
}

void PictureView::Read() {
    if (IsReady()) return;
    if (givenUp_) *givenUp_ = true;
    givenUp_ = std::make_shared<std::atomic_bool>(false);
    reading_ = wanted_;
    auto promise = std::make_shared<QPromise<QImage>>();
    // From here on the watcher tells nothing more of what was read before.
    watcher_.setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, source = reading_, givenUp = givenUp_] {
        promise->start();
        promise->addResult(ReadOrNothing(source.path, source.size, *givenUp));
        promise->finish();
    });
}

void PictureView::Take() {
    if (reading_ != wanted_) return;
    read_ = reading_;
    picture_ = watcher_.result();
    update();
    emit Ready();
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!picture_.isNull()) painter.drawImage(place_, picture_);
}

} // namespace korvane
