#include "files/lists/FileHandling.h"

#include "files/lists/OpenWith.h"
#include "files/viewing/ViewFile.h"

namespace korvane {

void FileHandling::View(TextView path) {
    ViewFile(app_, path);
}

void FileHandling::OpenWith(TextView path) {
    OpenWithUserProgram(app_, path);
}

} // namespace korvane
