#pragma once

#include "platform/qt/base/Ears.h"

#include <QList>
#include <QStringList>

namespace korvane::test {

/// Listens like a screen reader, and notes what it is told.
class HeardEvents : public Ears {
public:
    struct Heard {
        QAccessible::Event kind;
        QString name;
    };

    bool Listen() const override { return listens; }
    void Hear(QAccessibleEvent& event) override {
        QAccessibleInterface* part = event.accessibleInterface();
        heard_.append({event.type(), part == nullptr ? QString() : part->text(QAccessible::Name)});
    }

    void Clear() { heard_.clear(); }
    const QList<Heard>& All() const { return heard_; }
    /// The names of the parts of which such an event told, in order.
    QStringList Of(QAccessible::Event kind) const {
        QStringList names;
        for (const Heard& each : heard_) {
            if (each.kind == kind) names << each.name;
        }
        return names;
    }

    bool listens = true;

private:
    QList<Heard> heard_;
};

} // namespace korvane::test
