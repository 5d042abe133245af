#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <atomic>

namespace korvane {

/// The size in pixels of the picture in the file, as it is seen when the camera's turn is taken into account.
/// Only the head of the file is read. Empty for a file that isn't JPEG, PNG, BMP or GIF.
QSize SizeOfPicture(const QString& path);

/// The picture, in about this size but never larger than it is in the file. Pictures of too many pixels to be
/// kept in memory come smaller. Nothing when the file can't be read, and soon after `givenUp` has become
/// true.
QImage ReadPicture(const QString& path, const QSize& wanted, const std::atomic_bool& givenUp);

} // namespace korvane
