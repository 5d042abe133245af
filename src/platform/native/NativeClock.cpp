#include "platform/native/NativeClock.h"

#include "platform/native/SystemCalls.h"

#include <algorithm>
#include <thread>

namespace korvane {

DateTime NativeClock::Now() const {
    return ToLocalDateTime(std::time(nullptr));
}

std::chrono::milliseconds NativeClock::Uptime() const {
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(time);
}

void NativeClock::Wait(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

DateTime ToLocalDateTime(std::time_t time) {
    const std::tm local = system_calls::LocalTime(time);
    // A leap second counts as the second before it, because no minute has a second 60.
    const int second = std::min(local.tm_sec, 59);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, second};
}

} // namespace korvane
