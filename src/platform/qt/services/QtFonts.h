#pragma once

#include "platform/InstalledFonts.h"

#include <QObject>

namespace korvane {

/// The fonts of the desktop. There must be an application before it is made.
class QtFonts final : public InstalledFonts {
public:
    QtFonts();
    std::vector<Text> Names() const override;
    bool Has(TextView name) const override;

private:
    /// Asking for hundreds of names takes longer than a small window does to open. They are kept until Qt
    /// tells that there are others.
    mutable std::vector<Text> names_;
    QObject change_;
};

} // namespace korvane
