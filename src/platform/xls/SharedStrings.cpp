#include "platform/xls/SharedStrings.h"

#include "platform/xls/BiffRecords.h"

#include <algorithm>
#include <functional>

namespace korvane::xls {

namespace {

/// The head before the first text: how often texts are used, and how many there are.
constexpr std::size_t kCounts = 8;
/// The head before each text: its length and the width of its characters. It is never split.
constexpr std::size_t kTextHead = 3;
constexpr std::size_t kWidthAt = 2;
constexpr char kNarrow = 0;
constexpr char kWide = 1;
constexpr std::size_t kFirstSlots = 1024;

/// When all characters of a text are at most U+00FF, each takes one byte.
bool IsNarrow(TextView text) {
    char16_t all = 0;
    for (const char16_t character : text)
        all = static_cast<char16_t>(all | character);
    return all <= 0xFF;
}

void AppendHead(std::string& bytes, RecordType type, std::size_t size) {
    AppendLittle(bytes, static_cast<U16>(type), static_cast<U16>(size));
}

} // namespace

SharedStrings::SharedStrings() : slots_(kFirstSlots), recordFill_(kCounts) {}

U32 SharedStrings::Add(TextView text) {
    ++uses_;
    Encode(text);
    const std::string_view encoded = std::string_view(bytes_).substr(starts_.back());
    const std::size_t hash = std::hash<std::string_view>{}(encoded);
    Slot& slot = SlotOf(encoded, hash);
    if (slot.number != kNone) {
        bytes_.resize(starts_.back());
        return slot.number;
    }
    const U32 number = Count();
    slot = {static_cast<U32>(hash), number};
    LayOut(encoded);
    starts_.push_back(bytes_.size());
    if (2 * starts_.size() > slots_.size()) GrowSlots();
    return number;
}

/// Writes the text to the end of the bytes, where it stays if it is new.
void SharedStrings::Encode(TextView text) {
    const bool narrow = IsNarrow(text);
    AppendLittle(bytes_, static_cast<U16>(text.size()), static_cast<U8>(narrow ? kNarrow : kWide));
    const std::size_t at = bytes_.size();
    bytes_.resize(at + text.size() * (narrow ? 1 : 2));
    char* to = bytes_.data() + at;
    for (const char16_t character : text) {
        *to++ = static_cast<char>(character & 0xFF);
        if (!narrow) *to++ = static_cast<char>(character >> 8);
    }
}

std::string_view SharedStrings::BytesOf(U32 number) const {
    return std::string_view(bytes_).substr(starts_[number], starts_[number + 1] - starts_[number]);
}

SharedStrings::Slot& SharedStrings::SlotOf(std::string_view encoded, std::size_t hash) {
    const std::size_t mask = slots_.size() - 1;
    const auto tag = static_cast<U32>(hash);
    std::size_t at = tag & mask;
    while (slots_[at].number != kNone && (slots_[at].hash != tag || BytesOf(slots_[at].number) != encoded))
        at = (at + 1) & mask;
    return slots_[at];
}

void SharedStrings::GrowSlots() {
    std::vector<Slot> grown(2 * slots_.size());
    const std::size_t mask = grown.size() - 1;
    for (const Slot& slot : slots_) {
        if (slot.number == kNone) continue;
        std::size_t at = slot.hash & mask;
        while (grown[at].number != kNone)
            at = (at + 1) & mask;
        grown[at] = slot;
    }
    slots_ = std::move(grown);
}

/// A record never ends between the head of a text and its first character.
void SharedStrings::LayOut(std::string_view encoded) {
    const char width = encoded[kWidthAt];
    const std::size_t atLeast = kTextHead + (width == kWide ? 2 : 1);
    if (kMaxRecordData - recordFill_ < atLeast) {
        cuts_.push_back({starts_.back(), false, kNarrow});
        recordFill_ = 0;
    }
    recordFill_ += kTextHead;
    LayOutCharacters(starts_.back() + kTextHead, starts_.back() + encoded.size(), width);
}

void SharedStrings::LayOutCharacters(std::size_t at, std::size_t end, char width) {
    const std::size_t unit = width == kWide ? 2 : 1;
    for (;;) {
        const std::size_t room = kMaxRecordData - recordFill_;
        if (end - at <= room) break;
        at += room / unit * unit;
        cuts_.push_back({at, true, width});
        recordFill_ = sizeof width;
    }
    recordFill_ += end - at;
}

std::size_t SharedStrings::RecordsSize() const {
    const auto widths = std::ranges::count_if(cuts_, &Cut::insideText);
    return kCounts + bytes_.size() + (cuts_.size() + 1) * kRecordHead + static_cast<std::size_t>(widths);
}

void SharedStrings::Write(ChunkedOutput& output) const {
    std::size_t at = 0;
    std::string head;
    const auto putUpTo = [&](std::size_t end) {
        output.Put(head);
        output.Put(std::string_view(bytes_).substr(at, end - at));
        at = end;
    };
    const auto endOfRecord = [&](std::size_t cut) {
        return cut < cuts_.size() ? cuts_[cut].at : bytes_.size();
    };
    AppendHead(head, RecordType::Sst, kCounts + endOfRecord(0));
    AppendLittle(head, uses_, Count());
    putUpTo(endOfRecord(0));
    for (std::size_t i = 0; i < cuts_.size(); ++i) {
        const std::size_t size = endOfRecord(i + 1) - at + (cuts_[i].insideText ? 1 : 0);
        head.clear();
        AppendHead(head, RecordType::Continue, size);
        if (cuts_[i].insideText) head.push_back(cuts_[i].width);
        putUpTo(endOfRecord(i + 1));
    }
}

} // namespace korvane::xls
