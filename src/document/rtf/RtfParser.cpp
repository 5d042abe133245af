#include "document/rtf/RtfParser.h"

#include "document/model/Instruction.h"
#include "document/rtf/Rtf.h"

#include <algorithm>
#include <utility>

namespace korvane::doc::rtf {

namespace {

constexpr std::size_t kLongestWord = 32;
constexpr std::size_t kLongestInstruction = 1u << 20;
constexpr std::int32_t kLargestNumber = 0x7FFFFFFF;
/// Stands for a character of two bytes, whose code pages the program doesn't have.
constexpr char16_t kUnknown = 0xFFFD;

/// Which bytes are text as they are.
constexpr std::array<bool, 256> MakePlain() {
    std::array<bool, 256> plain{};
    for (std::size_t c = 0x20; c < 0x7F; ++c)
        plain[c] = c != '\\' && c != '{' && c != '}';
    return plain;
}
constexpr std::array<bool, 256> kPlain = MakePlain();

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

SharedBytes Share(const std::string& bytes) {
    auto data = std::make_shared_for_overwrite<char[]>(bytes.size());
    std::ranges::copy(bytes, data.get());
    return {std::move(data), bytes.size()};
}

} // namespace

RtfParser::RtfParser(std::string_view bytes, const Limits& limits)
    : bytes_(bytes.substr(0, limits.bytes)), limits_(limits), builder_(limits) {
    if (bytes.size() > limits.bytes) builder_.Tell(Trouble::OverLimit);
    groups_.reserve(limits.depth);
}

ReadResult RtfParser::Read() {
    while (at_ < bytes_.size() && !builder_.Full()) {
        const std::size_t begin = at_;
        while (at_ < bytes_.size() && kPlain[static_cast<unsigned char>(bytes_[at_])])
            ++at_;
        if (at_ > begin) PutAscii(bytes_.substr(begin, at_ - begin));
        if (at_ < bytes_.size()) ReadSymbol();
    }
    Prepare();
    const ParaFormat last = TakeParaFormat();
    result_.document = builder_.Finish(last);
    result_.Tell(builder_.Told());
    return std::move(result_);
}

void RtfParser::ReadSymbol() {
    const char c = bytes_[at_++];
    switch (c) {
    case '\\':
        return ReadWord();
    case '{':
        return OpenGroup();
    case '}':
        return CloseGroup();
    case '\r':
    case '\n':
    case '\0':
        return;
    case '\t':
        return Put(u'\t');
    default:
        return PutByte(static_cast<unsigned char>(c));
    }
}

void RtfParser::ReadWord() {
    const std::size_t begin = at_;
    while (at_ < bytes_.size() && IsLetter(bytes_[at_]))
        ++at_;
    if (at_ > begin) {
        const std::string_view name = bytes_.substr(begin, at_ - begin);
        return RunWord(name, ReadNumber());
    }
    if (at_ == bytes_.size()) return;
    switch (const char c = bytes_[at_++]) {
    case '\'':
        return ReadHexCharacter();
    case '*':
        starred_ = true;
        return;
    case '~':
        return Put(u'\u00A0');
    case '-':
        return Put(u'\u00AD');
    case '_':
        return Put(u'\u2011');
    case '\r':
    case '\n':
        return RunWord("par", {});
    case '\t':
        return Put(u'\t');
    case '\\':
    case '{':
    case '}':
        return PutAscii({&c, 1});
    default:
        return;
    }
}

Value RtfParser::ReadNumber() {
    const std::size_t begin = at_;
    const bool minus = at_ < bytes_.size() && bytes_[at_] == '-';
    if (minus) ++at_;
    Value value;
    std::int64_t number = 0;
    for (; at_ < bytes_.size() && bytes_[at_] >= '0' && bytes_[at_] <= '9'; ++at_) {
        value.given = true;
        number = std::min<std::int64_t>(number * 10 + (bytes_[at_] - '0'), kLargestNumber);
    }
    if (!value.given)
        at_ = begin;
    else if (at_ < bytes_.size() && bytes_[at_] == ' ')
        ++at_;
    if (!value.given && at_ < bytes_.size() && bytes_[at_] == ' ') ++at_;
    value.number = static_cast<std::int32_t>(minus ? -number : number);
    return value;
}

void RtfParser::RunWord(std::string_view name, const Value& value) {
    const Words::Row* const row = name.size() <= kLongestWord ? Words::Find(name) : nullptr;
    const bool starred = std::exchange(starred_, false);
    if (fallbackLeft_ > 0) {
        --fallbackLeft_;
        if (row == nullptr || row->handler != &RtfParser::Binary) return;
    }
    if (row != nullptr)
        (this->*row->handler)(value, row->argument);
    else if (starred)
        SkipGroup();
}

void RtfParser::ReadHexCharacter() {
    const int high = at_ < bytes_.size() ? HexDigit(bytes_[at_]) : -1;
    const int low = at_ + 1 < bytes_.size() ? HexDigit(bytes_[at_ + 1]) : -1;
    if (high < 0 || low < 0) return builder_.Tell(Trouble::Damaged);
    at_ += 2;
    PutByte(static_cast<unsigned char>(high << 4 | low));
}

void RtfParser::OpenGroup() {
    starred_ = false;
    fallbackLeft_ = 0;
    if (groups_.size() >= limits_.depth) return builder_.Tell(Trouble::OverLimit);
    groups_.push_back(state_);
    state_.isField = false;
}

void RtfParser::CloseGroup() {
    fallbackLeft_ = 0;
    leadByte_ = false;
    if (groups_.empty()) return builder_.Tell(Trouble::Damaged);
    // What follows the outermost group isn't part of the document. A paragraph without an end still counts.
    if (groups_.size() == 1)
        at_ = bytes_.size();
    else
        EndGroup();
}

void RtfParser::EndGroup() {
    const Target closed = state_.target;
    const Target outer = groups_.back().target;
    if (closed == Target::Picture && outer != Target::Picture) EndPicture();
    if (state_.isField) instructions_.pop_back();
    if (!outerParas_.empty() && outerParas_.back().first == groups_.size()) {
        para_ = std::move(outerParas_.back().second);
        outerParas_.pop_back();
    }
    state_ = groups_.back();
    groups_.pop_back();
    lookChanged_ = true;
    if (closed == Target::FontTable && outer != Target::FontTable) PlainText({}, 0);
    if (frameAfterGroup_) ChangePara().format.frame = *std::exchange(frameAfterGroup_, std::nullopt);
    if (outer != Target::OldList && oldListAfterGroup_)
        ChangePara().format.list = {*std::exchange(oldListAfterGroup_, std::nullopt)};
}

void RtfParser::SkipGroup() {
    std::size_t depth = 1;
    while (at_ < bytes_.size()) {
        const char c = bytes_[at_];
        if (c == '}' && --depth == 0) return;
        if (c == '{') ++depth;
        ++at_;
        if (c != '\\' || at_ >= bytes_.size()) continue;
        if (!bytes_.substr(at_).starts_with("bin")) {
            ++at_;
            continue;
        }
        at_ += 3;
        const Value length = ReadNumber();
        if (length.number > 0)
            at_ += std::min<std::size_t>(static_cast<std::size_t>(length.number), bytes_.size() - at_);
    }
}

bool RtfParser::TakesFallback() {
    if (fallbackLeft_ == 0) return false;
    --fallbackLeft_;
    return true;
}

void RtfParser::Prepare() {
    if (para_.inTable) builder_.OpenCell();
    if (!lookChanged_) return;
    builder_.SetFormat(LookAtHand());
    builder_.SetField(state_.field);
    lookChanged_ = false;
}

void RtfParser::PutAscii(std::string_view text) {
    if (fallbackLeft_ > 0) {
        const std::size_t dropped =
            std::min<std::size_t>(static_cast<std::size_t>(fallbackLeft_), text.size());
        fallbackLeft_ -= static_cast<std::int32_t>(dropped);
        text.remove_prefix(dropped);
    }
    if (text.empty()) return;
    if (std::exchange(leadByte_, false)) {
        PutBody(kUnknown);
        text.remove_prefix(1);
    }
    switch (state_.target) {
    case Target::Body:
        if (state_.hidden) return;
        Prepare();
        return builder_.AddAscii(text);
    case Target::FontTable:
        return PutFontName(text);
    case Target::ColourTable:
        return EndColours(text);
    case Target::Picture:
        return PutHex(text);
    case Target::Instruction:
        for (const char c : text)
            Put(static_cast<unsigned char>(c));
        return;
    default:
        return;
    }
}

void RtfParser::PutByte(unsigned char byte) {
    const bool twoBytes = state_.font != nullptr && !state_.font->page;
    if (twoBytes && byte >= 0x80 && !leadByte_) {
        leadByte_ = fallbackLeft_ == 0;
        if (!leadByte_) --fallbackLeft_;
        return;
    }
    if (std::exchange(leadByte_, false)) return Put(kUnknown);
    const CodePage& page = state_.font != nullptr && state_.font->page ? *state_.font->page : ansi_;
    Put(page.Decode(byte));
}

void RtfParser::Put(char16_t character) {
    if (TakesFallback()) return;
    switch (state_.target) {
    case Target::Body:
        return PutBody(character);
    case Target::FontTable:
        fontName_ += character;
        return;
    case Target::Instruction:
        if (instructions_.back().size() < kLongestInstruction) instructions_.back() += character;
        return;
    default:
        return;
    }
}

void RtfParser::PutBody(char16_t character) {
    // Characters that end a paragraph or a line have words of their own.
    if (state_.hidden || (character < 0x20 && character != u'\t' && character != kLineBreak)) return;
    if (character == kImageCharacter) character = kUnknown;
    Prepare();
    builder_.Add(character);
}

void RtfParser::PutFontName(std::string_view text) {
    for (const char c : text) {
        if (c != ';') {
            fontName_ += static_cast<unsigned char>(c);
            continue;
        }
        if (fonts_.size() < limits_.formats) {
            const TextView name = Trim(fontName_);
            fonts_[fontNumber_].font = builder_.Target().FontNumber(name.empty() ? TextView(u"Arial") : name);
        }
        fontName_.clear();
    }
}

void RtfParser::EndColours(std::string_view text) {
    for (const char c : text) {
        if (c != ';') continue;
        if (colours_.size() < limits_.formats) colours_.push_back({colour_});
        colour_ = kNoColour.value;
    }
}

void RtfParser::PutHex(std::string_view text) {
    for (const char c : text) {
        const int digit = HexDigit(c);
        if (digit < 0) continue;
        if (halfByte_)
            pictureBytes_.back() =
                static_cast<char>(static_cast<unsigned char>(pictureBytes_.back()) << 4 | digit);
        else
            pictureBytes_ += static_cast<char>(digit);
        halfByte_ = !halfByte_;
    }
}

void RtfParser::EndPicture() {
    const auto size = [this](std::size_t goal, std::size_t scale) {
        const std::int64_t scaled = std::int64_t{pictureSizes_[goal]} * pictureSizes_[scale] / 100;
        return static_cast<std::int32_t>(std::clamp<std::int64_t>(scaled, 0, kLargestNumber));
    };
    picture_.width = size(0, 2);
    picture_.height = size(1, 3);
    if (picture_.kind != ImageKind::Other) picture_.bytes = Share(pictureBytes_);
    pictureBytes_.clear();
    pictureBytes_.shrink_to_fit();
    halfByte_ = false;
    if (state_.hidden) return;
    Prepare();
    builder_.AddImage(std::exchange(picture_, {}));
}

void RtfParser::BeginResult() {
    const std::optional<Field> field = ReadInstruction(instructions_.back());
    if (!field) return;
    state_.field = builder_.NewField(*field);
    lookChanged_ = true;
}

ParaState& RtfParser::ChangePara() {
    const std::size_t depth = groups_.size();
    if (outerParas_.empty() || outerParas_.back().first != depth) outerParas_.emplace_back(depth, para_);
    return para_;
}

ParaFormat RtfParser::TakeParaFormat() {
    ParaFormat format = para_.format;
    format.pageBreakBefore |= std::exchange(breakNext_, false);
    return format;
}

void RtfParser::ApplyList(ParaState& para) const {
    const auto found = overrides_.find(para.list);
    para.format.list = {};
    if (para.list <= 0 || found == overrides_.end() || found->second.empty()) return;
    const std::size_t level =
        std::min(static_cast<std::size_t>(std::clamp(para.level, 0, 8)), found->second.size() - 1);
    const ListLevel& look = found->second[level];
    para.format.list = {look.kind, static_cast<std::uint8_t>(level), look.start,
                        static_cast<std::uint32_t>(para.list)};
}

} // namespace korvane::doc::rtf

namespace korvane::doc {

ReadResult ReadRtf(std::string_view bytes, const Limits& limits) {
    const std::size_t begin = bytes.find_first_not_of(" \t\r\n");
    if (begin == std::string_view::npos || !bytes.substr(begin).starts_with("{\\rtf")) {
        ReadResult result;
        result.Tell(bytes.empty() ? Trouble::None : Trouble::WrongFormat);
        return result;
    }
    return rtf::RtfParser(bytes.substr(begin), limits).Read();
}

} // namespace korvane::doc
