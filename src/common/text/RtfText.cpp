#include "common/text/RtfText.h"

#include <array>
#include <cctype>
#include <charconv>
#include <vector>

namespace korvane {

namespace {

constexpr std::array<std::string_view, 4> kHiddenGroups{"fonttbl", "colortbl", "stylesheet", "info"};

bool IsLetter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

class Reader {
public:
    explicit Reader(std::string_view rtf) : rest_(rtf) {}

    std::string Read() {
        while (!rest_.empty())
            Step();
        return text_;
    }

private:
    char Take() {
        const char c = rest_.front();
        rest_.remove_prefix(1);
        return c;
    }

    void Step() {
        const char c = Take();
        if (c == '{') {
            hidden_.push_back(Hidden());
        } else if (c == '}') {
            if (!hidden_.empty()) hidden_.pop_back();
        } else if (c == '\\') {
            Control();
        } else if (c != '\n' && c != '\r') {
            Put(c);
        }
    }

    bool Hidden() const { return !hidden_.empty() && hidden_.back(); }
    void Hide() {
        if (!hidden_.empty()) hidden_.back() = true;
    }
    void Put(char c) {
        if (!Hidden()) text_ += c;
    }

    void Control() {
        if (rest_.empty()) return;
        if (IsLetter(rest_.front())) return Word();
        const char symbol = Take();
        if (symbol == '*') {
            Hide();
        } else if (symbol == '\'' && rest_.size() >= 2) {
            unsigned code = 0;
            std::from_chars(rest_.data(), rest_.data() + 2, code, 16);
            rest_.remove_prefix(2);
            Put(static_cast<char>(code));
        } else {
            Put(symbol);
        }
    }

    void Word() {
        std::string_view word = rest_;
        while (!rest_.empty() && IsLetter(rest_.front()))
            Take();
        word = word.substr(0, word.size() - rest_.size());
        while (!rest_.empty() &&
               (rest_.front() == '-' || std::isdigit(static_cast<unsigned char>(rest_.front()))))
            Take();
        if (!rest_.empty() && rest_.front() == ' ') Take();
        Act(word);
    }

    void Act(std::string_view word) {
        for (const std::string_view group : kHiddenGroups) {
            if (word == group) Hide();
        }
        if (word == "par" || word == "row") Put('\n');
        if (word == "cell" || word == "tab") Put('\t');
        if (word == "outlinelevel" && !Hidden()) text_ += kRtfHeading;
    }

    std::string_view rest_;
    std::string text_;
    /// Says for each open group whether it is hidden.
    std::vector<bool> hidden_;
};

} // namespace

std::string RtfText(std::string_view rtf) {
    return Reader(rtf).Read();
}

} // namespace korvane
