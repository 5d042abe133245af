#pragma once

#include <QAccessible>
#include <QHash>
#include <utility>

namespace korvane {

/// The parts of a widget that a screen reader has asked for, by their numbers. They are forgotten with this
/// object.
class SpokenParts {
public:
    SpokenParts() = default;
    SpokenParts(const SpokenParts&) = delete;
    SpokenParts& operator=(const SpokenParts&) = delete;
    ~SpokenParts() {
        for (const QAccessible::Id id : std::as_const(known_))
            QAccessible::deleteAccessibleInterface(id);
    }

    /// The part of this number. `make` returns a new one, which the cache of Qt owns from then on.
    template <class Make>
    QAccessibleInterface* At(int number, const Make& make) {
        const auto known = known_.constFind(number);
        if (known != known_.constEnd()) return QAccessible::accessibleInterface(*known);
        QAccessibleInterface* const part = make();
        known_.insert(number, QAccessible::registerAccessibleInterface(part));
        return part;
    }

private:
    QHash<int, QAccessible::Id> known_;
};

} // namespace korvane
