// Does any steps of a user and of the program to a text control, and the same to a plain text beside it.

#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "controls/text/TextStyles.h"
#include "support/RandomDocument.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <set>

namespace korvane {
namespace {

/// The text with CR LF at the end of each line.
Text WithLineEnds(TextView text) {
    Text lines;
    for (const char16_t character : text) {
        if (character == u'\r')
            lines += kCrLf;
        else
            lines += character;
    }
    return lines;
}

class RandomSteps {
public:
    explicit RandomSteps(unsigned seed) : random_(seed) {
        control_.SetWhole(doc::RandomDocument(seed, {.images = false}));
        first_ = text_ = control_.All();
        seen_.insert(text_);
    }

    /// The first fault in words, empty if there is none.
    std::string Run(int steps) {
        for (int step = 0; step < steps; ++step) {
            const std::string fault = Do(Number(10));
            if (!fault.empty()) return "step " + std::to_string(step) + ": " + fault;
        }
        return TravelsBackAndForth();
    }

private:
    int Number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(std::max(below, 1))); }

    /// A place that isn't within the end of a line.
    int Place() {
        const int place = Number(static_cast<int>(text_.size()) + 1);
        const auto at = static_cast<std::size_t>(place);
        const bool within = at > 0 && at < text_.size() && text_[at] == u'\n';
        return within ? place + 1 : place;
    }

    /// A piece of text for places outside of tables, where there may be line ends.
    Text Piece() {
        static const Text kPieces[] = {u"a", u" ", u"word", u"\r", u"x\ry", u"\t", u"", u"é€"};
        const Text piece = kPieces[Number(static_cast<int>(std::size(kPieces)))];
        const bool inTable = control_.TableAtInputPos() != 0;
        return inTable && piece.find(u'\r') != Text::npos ? Text(u"t") : piece;
    }

    /// A selection within a paragraph: what is done over the edges of cells is told elsewhere.
    void Select() {
        const int start = Place();
        const std::size_t end = std::min(text_.find(u'\r', static_cast<std::size_t>(start)), text_.size());
        const int length = Number(static_cast<int>(end) - start + 1);
        Number(2) == 0 ? control_.SetSelection(start, length) : control_.MoveSelection(start, length);
    }

    std::string Write(bool typed) {
        const auto start = static_cast<std::size_t>(control_.SelStart());
        const auto length = static_cast<std::size_t>(control_.SelLength());
        const Text piece = Piece();
        typed ? control_.Type(piece) : control_.SetSelText(piece);
        const Text lines = WithLineEnds(piece);
        text_.replace(start, length, lines);
        if (control_.SelStart() != static_cast<int>(start + lines.size()))
            return "the cursor isn't after the text";
        if (control_.SelLength() != 0) return "something is selected after writing";
        return {};
    }

    std::string Erase() {
        if (control_.SelLength() == 0) return {};
        text_.erase(static_cast<std::size_t>(control_.SelStart()),
                    static_cast<std::size_t>(control_.SelLength()));
        control_.Erase();
        return {};
    }

    /// A look is given to the selection, and read again.
    std::string Format() {
        const int on = Number(2);
        control_.SetFontBold(on);
        const bool plain = control_.SelLength() == 0 || !control_.SelText().empty();
        if (plain && control_.FontBold() != on) return "a look that was given isn't there";
        control_.SetFontSize(8 + Number(20));
        control_.SetBaseLine(Number(3) * 20 - 20);
        if (control_.FontBold() != on) return "another look took one away";
        return {};
    }

    std::string FormatParagraphs() {
        const int left = Number(5) * 100;
        control_.SetIndentL(left);
        if (control_.IndentL() != left) return "an indent that was given isn't there";
        control_.SetAlignment(Number(4));
        control_.SetListMark({.kind = static_cast<doc::ListKind>(Number(7))});
        ApplyStyle(control_, TextStyles()[static_cast<std::size_t>(Number(6))]);
        return {};
    }

    /// What is selected is the same in another control.
    std::string Copy() {
        TextControl other(form_, "other");
        const std::string rtf = control_.SelTextRtf();
        if (rtf.empty() != (control_.SelLength() == 0)) return "a selection without formatted text";
        other.SetSelTextRtf(rtf);
        return other.All() == control_.SelText() ? "" : "a copy has another text";
    }

    std::string Travel() {
        Number(2) == 0 ? control_.Undo() : control_.Redo();
        text_ = control_.All();
        return seen_.contains(text_) ? "" : "undoing came to a text that never was";
    }

    std::string Do(int kind) {
        const std::string fault = kind < 3   ? (Select(), std::string())
                                  : kind < 5 ? Write(true)
                                  : kind < 6 ? Write(false)
                                  : kind < 7 ? Erase()
                                  : kind < 8 ? Format()
                                  : kind < 9 ? FormatParagraphs()
                                             : (Number(2) == 0 ? Copy() : Travel());
        if (!fault.empty()) return fault;
        if (control_.All() != text_) return "the text is another one";
        seen_.insert(text_);
        return doc::IsSound(control_.Whole()) ? "" : "the document isn't sound";
    }

    std::string TravelsBackAndForth() {
        while (control_.Redo()) {
        }
        const doc::Document last = control_.Whole();
        while (control_.Undo()) {
        }
        if (control_.All() != first_) return "undoing all doesn't lead to the first text";
        while (control_.Redo()) {
        }
        return doc::FirstDifference(control_.Whole(), last);
    }

    std::mt19937 random_;
    ScriptedUser user_;
    Form form_{user_, "Form", u""};
    TextControl control_{form_, "control"};
    Text first_;
    Text text_;
    /// Every text that the control has had.
    std::set<Text> seen_;
};

/// The environment can ask for more rounds than the usual ones.
TEST(RandomTextControl, StepsInAnyOrderKeepTheTextAndAreUndone) {
    const char* const asked = std::getenv("KORVANE_CONTROL_ROUNDS");
    const int rounds = std::max(40, asked == nullptr ? 0 : std::atoi(asked));
    for (int round = 1; round <= rounds; ++round)
        ASSERT_EQ(RandomSteps(static_cast<unsigned>(round)).Run(60), "") << "round " << round;
}

} // namespace
} // namespace korvane
