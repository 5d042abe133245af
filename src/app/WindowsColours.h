#pragma once

#include <QAbstractNativeEventFilter>
#include <functional>

namespace korvane {

/// Calls `changed` when the user has asked Windows for light or dark windows.
class WindowsColours final : public QAbstractNativeEventFilter {
public:
    explicit WindowsColours(std::function<void()> changed);

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    std::function<void()> changed_;
};

} // namespace korvane
