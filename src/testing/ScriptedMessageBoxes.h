#pragma once

#include "platform/MessageBoxes.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace korvane {

/// Message boxes that are answered from a script and remembered.
class ScriptedMessageBoxes final : public MessageBoxes {
public:
    /// Hears of a box without a scripted answer, or with one that the box has no button for, in words that
    /// name the box.
    using Complaint = std::function<void(const std::string& what)>;

    /// Without a complaint, every box that nobody scripted is answered as by Esc.
    explicit ScriptedMessageBoxes(Complaint complaint = {});

    Answer Show(const Message& message) override;

    /// Answers the next box that has no answer yet.
    void QueueAnswer(Answer answer) { answers_.push_back(answer); }

    /// All boxes so far, in order.
    const std::vector<Message>& Shown() const { return shown_; }
    void ForgetShown() { shown_.clear(); }
    /// The number of answers that no box has asked for yet.
    std::size_t PendingAnswers() const { return answers_.size(); }

private:
    void Complain(const char* fault, const Message& message) const;

    Complaint complaint_;
    std::vector<Message> shown_;
    std::deque<Answer> answers_;
};

/// What Esc and the close box answer.
Answer EscAnswer(MessageButtons buttons);

/// The message in words, for the output of tests.
std::string DescribeMessage(const Message& message);

/// Lets the test framework print a message.
void PrintTo(const Message& message, std::ostream* stream);

} // namespace korvane
