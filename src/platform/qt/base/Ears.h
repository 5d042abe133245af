#pragma once

#include <QAccessible>

namespace korvane {

/// Who hears what widgets tell screen readers.
class Ears {
public:
    Ears() = default;
    Ears(const Ears&) = delete;
    Ears& operator=(const Ears&) = delete;
    virtual ~Ears() = default;

    /// While nobody listens, nothing needs to be told.
    virtual bool Listen() const { return QAccessible::isActive(); }
    virtual void Hear(QAccessibleEvent& event) { QAccessible::updateAccessibility(&event); }
};

} // namespace korvane
