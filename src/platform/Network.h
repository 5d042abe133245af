#pragma once

#include "common/text/Text.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace korvane {

/// What is asked of the net.
struct FetchRequest {
    /// Begins with "http://" or "https://"; nothing else is fetched.
    Text address;
    /// Whether the server may send the program on to another one.
    bool otherServers = true;
    /// The most that is taken, unpacked, and the longest time for it.
    std::int64_t bytes = 10'000'000;
    std::chrono::milliseconds time{15'000};
};

/// What came of it.
struct Fetched {
    enum class Outcome : std::uint8_t {
        Done,
        /// `reason` says why.
        Failed,
        /// The server couldn't prove who it is. `reason` has a line for each thing that is wrong.
        NotTrusted,
        TooLarge,
        TooSlow,
    };
    Outcome outcome = Outcome::Failed;
    /// Where the server sent the program; the address that was asked for if it didn't.
    Text address{};
    /// As the server tells it: "text/html; charset=utf-8".
    Text type{};
    std::string bytes{};
    Text reason{};
    std::chrono::milliseconds took{0};
};

/// A fetch that is under way. When it is destroyed, nothing more comes of it.
class Fetch {
public:
    virtual ~Fetch() = default;
};

/// The net. Nothing is kept of a fetch: no cookies, and no copies.
class Network {
public:
    virtual ~Network() = default;
    /// `then` is called once, when messages run.
    virtual std::unique_ptr<Fetch> Get(const FetchRequest& request, std::function<void(Fetched)> then) = 0;
};

} // namespace korvane
