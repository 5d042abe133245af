#pragma once

#include "platform/Network.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

namespace korvane {

/// A net of prepared answers, which come when a test says so.
class MemoryNetwork final : public Network {
public:
    /// What the address answers. Other addresses can't be reached.
    void Put(const Text& address, Fetched answer) {
        if (answer.address.empty()) answer.address = address;
        answers_[address] = std::move(answer);
    }
    void PutPage(const Text& address, std::string html) {
        Put(address, {.outcome = Fetched::Outcome::Done, .type = u"text/html", .bytes = std::move(html)});
    }

    std::unique_ptr<Fetch> Get(const FetchRequest& request, std::function<void(Fetched)> then) override {
        requests_.push_back(request);
        waiting_.push_back({++last_, request.address, std::move(then)});
        return std::make_unique<Held>(*this, last_);
    }

    /// Answers what waits, and what is asked meanwhile.
    void AnswerAll() {
        while (!waiting_.empty())
            AnswerNext();
    }
    /// Answers what waits longest.
    void AnswerNext() {
        const Waiting next = std::move(waiting_.front());
        waiting_.erase(waiting_.begin());
        next.then(AnswerTo(next.address));
    }

    /// All requests so far, in order.
    const std::vector<FetchRequest>& Requests() const { return requests_; }
    std::size_t Waits() const { return waiting_.size(); }

private:
    struct Waiting {
        int number;
        Text address;
        std::function<void(Fetched)> then;
    };
    class Held final : public Fetch {
    public:
        Held(MemoryNetwork& network, int number) : network_(network), number_(number) {}
        Held(const Held&) = delete;
        Held& operator=(const Held&) = delete;
        ~Held() override {
            std::erase_if(network_.waiting_,
                          [this](const Waiting& waiting) { return waiting.number == number_; });
        }

    private:
        MemoryNetwork& network_;
        int number_;
    };

    Fetched AnswerTo(const Text& address) const {
        const auto found = answers_.find(address);
        return found != answers_.end() ? found->second
                                       : Fetched{.address = address, .reason = u"Host not found"};
    }

    std::map<Text, Fetched> answers_;
    std::vector<FetchRequest> requests_;
    std::vector<Waiting> waiting_;
    int last_ = 0;
};

} // namespace korvane
