#include "platform/qt/services/QtSystemFolders.h"

#include "platform/qt/base/Convert.h"

#include <QDir>
#include <QStandardPaths>

namespace korvane {

namespace {

Text Standard(QStandardPaths::StandardLocation kind) {
    return ToText(QDir::toNativeSeparators(QStandardPaths::writableLocation(kind)));
}

} // namespace

Text QtSystemFolders::ProgramFiles() const {
    return {};
}

Text QtSystemFolders::Windows() const {
    return {};
}

Text QtSystemFolders::System() const {
    return {};
}

Text QtSystemFolders::Fonts() const {
    return Standard(QStandardPaths::FontsLocation);
}

Text QtSystemFolders::Documents() const {
    return Standard(QStandardPaths::DocumentsLocation);
}

} // namespace korvane
