#pragma once

#include "e2e/Events.h"

#include <map>
#include <string>
#include <vector>

namespace korvane::e2e {

/// A server of pages on the loopback address. It answers while a test waits for it.
class LoopbackServer final : public EventSource {
public:
    LoopbackServer();
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;
    ~LoopbackServer() override;

    /// What a path answers. Other paths don't exist.
    void Put(const std::string& path, const std::string& type, const std::string& body);
    /// The address of a path: "http://127.0.0.1:40000/a".
    std::string Address(const std::string& path) const;
    /// The paths that were asked for, in order.
    const std::vector<std::string>& Paths() const { return paths_; }

    int Descriptor() const override { return descriptor_; }
    void Drain() override;

private:
    struct Page {
        std::string type;
        std::string body;
    };

    std::string AnswerTo(const std::string& request);

    int descriptor_;
    std::map<std::string, Page> pages_;
    std::vector<std::string> paths_;
};

} // namespace korvane::e2e
