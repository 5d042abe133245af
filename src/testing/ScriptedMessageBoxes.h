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
    /// Is called with a description of a box that has no scripted answer, or whose scripted answer has no
    /// button.
    using Complaint = std::function<void(const std::string& what)>;

    /// Without a complaint, every box without a scripted answer is answered as by Esc.
    explicit ScriptedMessageBoxes(Complaint complaint = {});

    Answer Show(const Message& message) override;

    /// Answers the next box that has no answer yet.
    void QueueAnswer(Answer answer) { answers_.push_back(answer); }

    /// All boxes so far, in order.
    const std::vector<Message>& Shown() const { return shown_; }
    void ForgetShown() { shown_.clear(); }
    /// The number of answers that aren't used yet.
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
