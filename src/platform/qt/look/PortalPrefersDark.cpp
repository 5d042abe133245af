#include "platform/qt/look/DesktopPrefersDark.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFileInfo>

namespace korvane {

namespace {

/// The value with which the desktop answers "prefer dark".
constexpr uint kPrefersDark = 1;

/// Whether programs of the desktop can be reached. Where they can't, the library of the bus would start a bus
/// of its own, which takes time and leaves a process there that nobody asked for.
bool HasSessionBus() {
    if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return true;
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus"));
}

} // namespace

bool DesktopPrefersDark() {
    constexpr int kPatience = 250;
    if (!HasSessionBus()) return false;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return false;
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    question << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme");
    const QDBusMessage reply = bus.call(question, QDBus::Block, kPatience);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) return false;
    // The value is wrapped in two variants.
    QVariant value = reply.arguments().constFirst();
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt() == kPrefersDark;
}

} // namespace korvane
