#pragma once

#include "Times.h"

#include <QTemporaryDir>
#include <string>

namespace korvane::bench {

/// LibreOffice without a window, in a profile of its own.
class Office {
public:
    /// The first start makes the profile, which the later ones find.
    Office();

    static bool Installed();
    /// Its processor time and the time on the clock from its start until it has read the file, written its
    /// text and ended. It paints nothing.
    Times ReadAsText(const std::string& rtf, int rounds);

private:
    void Convert(const std::string& rtf) const;

    QTemporaryDir folder_;
};

} // namespace korvane::bench
