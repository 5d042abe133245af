#include "platform/qt/picture/QtPictureFiles.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/picture/ReadPicture.h"

namespace korvane {

std::optional<PictureSize> QtPictureFiles::NaturalSize(TextView path) {
    const QSize size = SizeOfPicture(ToQString(path));
    if (size.isEmpty()) return std::nullopt;
    return PictureSize{ToTwips(size.width()), ToTwips(size.height())};
}

} // namespace korvane
