#pragma once

#include "common/text/Text.h"

#include <vector>

class QEvent;
class QMimeData;

namespace korvane {

/// The files of this computer among what is dragged, as the system writes their paths.
std::vector<Text> LocalFiles(const QMimeData& dragged);

/// Says yes to a drag that carries files of this computer.
void AcceptFiles(QEvent& drag);

} // namespace korvane
