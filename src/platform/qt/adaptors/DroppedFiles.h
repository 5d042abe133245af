#pragma once

#include "common/text/Text.h"

#include <vector>

class QEvent;
class QMimeData;

namespace korvane {

/// The paths of those dragged files that are on this computer, as the system writes them.
std::vector<Text> LocalFiles(const QMimeData& dragged);

/// Accepts a drag that carries files of this computer.
void AcceptFiles(QEvent& drag);

} // namespace korvane
