#pragma once

#include <QAccessible>

namespace korvane {

/// What a screen reader learns of a part of a widget that has no parts of its own and no widget either, such
/// as a cell or a tab.
class SpokenPart : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
};

} // namespace korvane
