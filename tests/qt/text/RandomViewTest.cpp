// Makes the same random calls of a control that is shown and of one that isn't. Both must have the same text,
// and the view must show it.

#include "MirrorCheck.h"
#include "QtSupport.h"
#include "controls/Form.h"
#include "platform/qt/text/QtTextView.h"
#include "platform/qt/text/TextControlAdaptor.h"
#include "platform/qt/text/TextItem.h"
#include "support/RandomDocument.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace korvane {
namespace {

/// The arguments of one call. Two with the same seed give the same ones.
class Dice {
public:
    explicit Dice(unsigned seed) : random_(seed) {}

    int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(std::max(end, 1))); }
    bool Toss() { return Below(2) == 0; }
    int Twips() { return Below(40) * 30 - 200; }
    TextView Piece() {
        static constexpr TextView kPieces[] = {u"",       u"x",      u"some words", u"\r\n", u"a\r\nb",
                                               u"1\v2\t", u"\u0645", u"\U0001F600", u"\r",   u"e\u0301"};
        return kPieces[Below(static_cast<int>(std::size(kPieces)))];
    }
    Colour AnyColour() { return Toss() ? kNoColour : Colour{Below(0x1000000)}; }
    /// A table of the text, or one that doesn't exist.
    int Table(const TextControl& control) {
        const auto& tables = control.Whole().tables;
        if (tables.empty() || Below(8) == 0) return Below(5);
        return static_cast<int>(std::next(tables.begin(), Below(static_cast<int>(tables.size())))->first);
    }

private:
    std::mt19937 random_;
};

using Call = void (*)(TextControl&, Dice&);

constexpr Call kCalls[] = {
    [](TextControl& c, Dice& d) { c.SetSelStart(d.Below(static_cast<int>(c.All().size()) + 3) - 1); },
    [](TextControl& c, Dice& d) { c.SetSelLength(d.Below(40) - 1); },
    [](TextControl& c, Dice& d) {
        c.SetSelection(d.Below(static_cast<int>(c.All().size()) + 1), d.Below(200));
    },
    [](TextControl& c, Dice& d) {
        c.MoveSelection(d.Below(static_cast<int>(c.All().size()) + 1), d.Below(9));
    },
    [](TextControl& c, Dice& d) { c.SetSelText(d.Piece()); },
    [](TextControl& c, Dice& d) { c.Type(d.Piece()); },
    [](TextControl& c, Dice& d) { c.Type(d.Piece()); },
    [](TextControl& c, Dice&) { c.Erase(); },
    [](TextControl& c, Dice&) { c.SetSelTextRtf(c.SelTextRtf()); },
    [](TextControl& c, Dice&) { c.Undo(); },
    [](TextControl& c, Dice&) { c.Undo(); },
    [](TextControl& c, Dice&) { c.Redo(); },
    [](TextControl& c, Dice& d) { c.SetFontName(d.Toss() ? u"DejaVu Sans" : u"Arial"); },
    [](TextControl& c, Dice& d) { c.SetFontSize(d.Below(40)); },
    [](TextControl& c, Dice& d) { c.SetFontBold(d.Below(2)); },
    [](TextControl& c, Dice& d) { c.SetFontItalic(d.Below(2)); },
    [](TextControl& c, Dice& d) { c.SetFontUnderline(d.Below(2)); },
    [](TextControl& c, Dice& d) { c.SetFontStrikethru(d.Below(2)); },
    [](TextControl& c, Dice& d) { c.SetCharAttributes(d.Below(64)); },
    [](TextControl& c, Dice& d) { c.SetBaseLine(d.Twips()); },
    [](TextControl& c, Dice& d) { c.SetForeColor(d.AnyColour()); },
    [](TextControl& c, Dice& d) { c.SetTextBkColor(d.AnyColour()); },
    [](TextControl& c, Dice& d) { c.SetAlignment(d.Below(5)); },
    [](TextControl& c, Dice& d) { c.SetIndentL(d.Twips()); },
    [](TextControl& c, Dice& d) { c.SetIndentR(d.Twips()); },
    [](TextControl& c, Dice& d) { c.SetIndentFL(d.Twips()); },
    [](TextControl& c, Dice& d) { c.SetIndentT(d.Twips()); },
    [](TextControl& c, Dice& d) { c.SetIndentB(d.Twips()); },
    [](TextControl& c, Dice& d) { c.SetLineSpacing(d.Below(300)); },
    [](TextControl& c, Dice& d) { c.SetLineSpacingT(d.Twips()); },
    [](TextControl& c, Dice& d) { c.SetFrameStyle(d.Below(256)); },
    [](TextControl& c, Dice& d) { c.SetFrameDistance(d.Twips()); },
    [](TextControl& c, Dice& d) { c.SetFrameLineWidth(d.Twips()); },
    [](TextControl& c, Dice& d) { c.SetListMark({.kind = static_cast<doc::ListKind>(d.Below(7))}); },
    [](TextControl& c, Dice& d) { c.SetTabCurrent(d.Below(16)); },
    [](TextControl& c, Dice& d) { c.SetTabPos(d.Twips()); },
    [](TextControl& c, Dice& d) { c.SetTabType(d.Below(5)); },
    [](TextControl& c, Dice& d) { c.InsertTable(d.Below(4), d.Below(4)); },
    [](TextControl& c, Dice& d) { c.SetCellText(d.Table(c), d.Below(4), d.Below(4), d.Piece()); },
    [](TextControl& c, Dice& d) {
        c.SetCellAttribute(d.Table(c), d.Below(4), d.Below(4), d.Below(12), d.Below(1500));
    },
    [](TextControl& c, Dice& d) { c.FieldInsert(d.Piece()); },
    [](TextControl& c, Dice& d) { c.SetFieldCurrent(c.FieldNext(d.Below(4))); },
    [](TextControl& c, Dice& d) { c.SetFieldText(d.Piece()); },
    [](TextControl& c, Dice& d) { c.SetFieldData(c.FieldCurrent(), d.Piece()); },
    [](TextControl& c, Dice& d) { c.ViewMode = d.Toss() ? TextControl::kPages : TextControl::kFlow; },
    [](TextControl& c, Dice& d) { c.ZoomFactor = kZoomSteps[d.Below(20)]; },
    [](TextControl& c, Dice& d) { c.ControlChars = d.Toss(); },
};

class ShownAndNot {
public:
    explicit ShownAndNot(unsigned seed) : seeds_(seed) {
        view_.resize(500, 300);
        adaptor_ = new TextControlAdaptor(shown_, view_);
        adaptor_->WriteAll();
        view_.show();
        Begin();
    }
    ShownAndNot(const ShownAndNot&) = delete;
    ShownAndNot& operator=(const ShownAndNot&) = delete;
    ~ShownAndNot() { adaptor_->Detach(); }

    /// The first fault in words, empty if there is none.
    std::string Run(int calls) {
        for (int i = 0; i < calls; ++i) {
            const std::string fault = CallBoth(i);
            if (!fault.empty()) return "call " + std::to_string(i) + ": " + fault;
        }
        const std::string undone = Travel(&TextControl::Undo);
        return undone.empty() ? Travel(&TextControl::Redo) : undone;
    }

private:
    static constexpr int kCallsBetweenChecks = 10;
    static constexpr std::size_t kLongest = 1500;

    void Begin() {
        const doc::Document document = doc::RandomDocument(static_cast<unsigned>(seeds_() % 500));
        for (TextControl* const control : {&bare_, &shown_})
            control->SetWhole(document);
    }

    std::string CallBoth(int number) {
        const Call call = kCalls[seeds_() % std::size(kCalls)];
        const auto seed = static_cast<unsigned>(seeds_());
        for (TextControl* const control : {&bare_, &shown_}) {
            Dice dice(seed);
            call(*control, dice);
        }
        // The view shows what changed when the program waits, so it misses some of the states.
        if (seeds_() % 3 == 0) test::Settle();
        const std::string fault = TextFault();
        if (!fault.empty()) return fault;
        if (number % kCallsBetweenChecks == 0) return WholeFault();
        // A text that grew is taken up again, so that a call doesn't take longer and longer.
        if (bare_.All().size() > kLongest) Begin();
        return {};
    }

    std::string TextFault() const {
        if (bare_.All() != shown_.All()) return "another text";
        if (bare_.SelStart() != shown_.SelStart()) return "another start of the selection";
        if (bare_.SelLength() != shown_.SelLength()) return "another end of the selection";
        return {};
    }

    std::string WholeFault() {
        const std::string difference = doc::FirstDifference(bare_.Whole(), shown_.Whole());
        if (!difference.empty()) return difference;
        if (!doc::IsSound(shown_.Whole())) return "the document isn't sound";
        view_.ShowText();
        const auto start = static_cast<doc::Pos>(shown_.SelStart());
        const doc::Pos end = start + static_cast<doc::Pos>(shown_.SelLength());
        // A place between the two characters of an end of a line is shown before both.
        const TextMirror& mirror = view_.Mirror();
        if (InOneCell(start, end) && view_.CursorPosition() != mirror.FromQt(mirror.ToQt(end)))
            return "the cursor is at " + std::to_string(view_.CursorPosition()) + " of the selection from " +
                   std::to_string(start) + " to " + std::to_string(end);
        return test::FaultOf(const_cast<TextMirror&>(mirror));
    }

    /// Qt shows a selection over the edge of a cell as one of whole cells.
    bool InOneCell(doc::Pos from, doc::Pos to) const {
        return shown_.Store().TableAt(from) == shown_.Store().TableAt(to);
    }

    /// Undoes everything, or does it all again.
    std::string Travel(bool (TextControl::*way)()) {
        while ((bare_.*way)()) {
            if (!(shown_.*way)()) return "one step less";
            if (const std::string fault = TextFault(); !fault.empty()) return fault;
        }
        return (shown_.*way)() ? "one step more" : WholeFault();
    }

    std::mt19937 seeds_;
    ScriptedUser user_;
    Form form_{user_, "Form", u""};
    TextControl bare_{form_, "bare"};
    TextControl shown_{form_, "shown"};
    QtTextView view_;
    TextControlAdaptor* adaptor_ = nullptr;
};

/// The environment can ask for other rounds and more of them than the usual ones.
TEST(RandomView, CallsOfAControlThatIsShownGiveTheSameText) {
    const int first = qEnvironmentVariableIntValue("KORVANE_VIEW_FIRST");
    const int rounds = std::max(10, qEnvironmentVariableIntValue("KORVANE_VIEW_ROUNDS"));
    for (int round = first; round < first + rounds; ++round)
        ASSERT_EQ(ShownAndNot(static_cast<unsigned>(round)).Run(100), "") << "round " << round;
}

} // namespace
} // namespace korvane
