#include "testing/ScriptedMessageBoxes.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <span>

namespace korvane {

namespace {

constexpr std::array kOk{Answer::Ok};
constexpr std::array kYesNo{Answer::Yes, Answer::No};
constexpr std::array kYesNoCancel{Answer::Yes, Answer::No, Answer::Cancel};
constexpr std::array kOkCancel{Answer::Ok, Answer::Cancel};

struct ButtonRow {
    const char* name;
    std::span<const Answer> answers;
};

constexpr std::array kButtonRows{
    ButtonRow{"Ok", kOk},
    ButtonRow{"YesNo", kYesNo},
    ButtonRow{"YesNoCancel", kYesNoCancel},
    ButtonRow{"OkCancel", kOkCancel},
};
constexpr std::array kIconNames{"None", "Information", "Question", "Exclamation", "Stop"};

const ButtonRow& RowOf(MessageButtons buttons) {
    return kButtonRows[static_cast<std::size_t>(buttons)];
}

bool HasButton(MessageButtons buttons, Answer answer) {
    const auto answers = RowOf(buttons).answers;
    return std::find(answers.begin(), answers.end(), answer) != answers.end();
}

} // namespace

ScriptedMessageBoxes::ScriptedMessageBoxes(Complaint complaint) : complaint_(std::move(complaint)) {}

Answer ScriptedMessageBoxes::Show(const Message& message) {
    shown_.push_back(message);
    if (answers_.empty()) {
        Complain("nobody scripted an answer to", message);
        return EscAnswer(message.buttons);
    }
    const Answer answer = answers_.front();
    answers_.pop_front();
    if (HasButton(message.buttons, answer)) return answer;
    Complain("the scripted answer has no button in", message);
    return EscAnswer(message.buttons);
}

void ScriptedMessageBoxes::Complain(const char* fault, const Message& message) const {
    if (complaint_) complaint_(std::string(fault) + ' ' + DescribeMessage(message));
}

Answer EscAnswer(MessageButtons buttons) {
    // The last button is the one that changes nothing.
    return RowOf(buttons).answers.back();
}

std::string DescribeMessage(const Message& message) {
    return "the message box \"" + ToUtf8(message.text) +
           "\" (icon: " + kIconNames[static_cast<std::size_t>(message.icon)] +
           ", buttons: " + RowOf(message.buttons).name +
           ", default button: " + std::to_string(message.defaultButton) + ')';
}

void PrintTo(const Message& message, std::ostream* stream) {
    *stream << DescribeMessage(message);
}

} // namespace korvane
