#include "grid/TextBlocks.h"

#include <algorithm>
#include <utility>

namespace korvane {

namespace {

/// Packing goes over all cells, which isn't worth it for less garbage than this.
constexpr std::size_t kLeastGarbage = std::size_t{64} * 1024;

} // namespace

void TextBlocks::Adopt(SharedBytes bytes) {
    adopted_ = std::move(bytes);
    adoptedUse_ = {};
}

TextHandle TextBlocks::Put(TextView text) {
    const std::size_t offset = bytes_.Size();
    if (AppendAsBytes(text)) return HandleOf({TextHandle::Kind::Bytes, offset, text.size()});
    wide_.Append(text);
    return HandleOf({TextHandle::Kind::Wide, wide_.Size() - text.size(), text.size()});
}

TextHandle TextBlocks::PutBytes(std::string_view bytes) {
    bytes_.Append(bytes);
    return HandleOf({TextHandle::Kind::Bytes, bytes_.Size() - bytes.size(), bytes.size()});
}

/// False, with nothing appended, when a character has no byte.
bool TextBlocks::AppendAsBytes(TextView text) {
    char* to = bytes_.Room(text.size());
    for (const char16_t unit : text) {
        const std::optional<unsigned char> byte = page_.Encode(unit);
        if (!byte) return false;
        *to++ = static_cast<char>(*byte);
    }
    bytes_.Added(text.size());
    return true;
}

void TextBlocks::GiveUp(TextHandle handle) {
    if (handle.IsEmpty()) return;
    const Place place = PlaceOf(handle);
    Use& use = UseOf(place);
    use.live -= place.ByteSize();
    use.garbage += place.ByteSize();
    if (place.kind == TextHandle::Kind::Wide) --wideTexts_;
}

TextView TextBlocks::WideAt(const Place& place) const {
    return wide_.Part(place.offset, place.length);
}

Text TextBlocks::ToText(TextHandle handle) const {
    if (const auto bytes = Bytes(handle)) return page_.ToText(*bytes);
    return Text(WideAt(PlaceOf(handle)));
}

bool TextBlocks::Equals(TextHandle handle, TextView text) const {
    const auto bytes = Bytes(handle);
    if (!bytes) return WideAt(PlaceOf(handle)) == text;
    return std::ranges::equal(*bytes, text, [this](char byte, char16_t unit) {
        return page_.Decode(static_cast<unsigned char>(byte)) == unit;
    });
}

bool TextBlocks::Contains(TextHandle handle, TextView part, const std::optional<BytePattern>& pattern) const {
    const auto bytes = Bytes(handle);
    if (!bytes) return WideAt(PlaceOf(handle)).find(part) != TextView::npos;
    return pattern && pattern->IsIn(*bytes);
}

bool TextBlocks::WantsPacking() const {
    const std::size_t garbage = adoptedUse_.garbage + ownUse_.garbage;
    return garbage >= kLeastGarbage && garbage > adoptedUse_.live + ownUse_.live;
}

void TextBlocks::KeepAdoptedOf(const TextBlocks& other) {
    adopted_ = other.adopted_;
    adoptedUse_.garbage = other.adoptedUse_.garbage;
}

bool TextBlocks::TakeOverAll(const TextBlocks& other) {
    if (!HasAdopted() || other.ownUse_ != Use() || !other.large_.empty()) return false;
    adoptedUse_.live += other.adoptedUse_.live;
    adoptedUse_.garbage += other.adoptedUse_.garbage;
    return true;
}

TextHandle TextBlocks::TakeOver(const TextBlocks& other, TextHandle handle) {
    if (handle.IsEmpty()) return {};
    const Place place = other.PlaceOf(handle);
    if (place.kind == TextHandle::Kind::Adopted && HasAdopted()) return HandleOf(place);
    if (place.kind == TextHandle::Kind::Wide) {
        wide_.Append(other.WideAt(place));
        return HandleOf({place.kind, wide_.Size() - place.length, place.length});
    }
    bytes_.Append(other.BytesAt(place));
    return HandleOf({TextHandle::Kind::Bytes, bytes_.Size() - place.length, place.length});
}

} // namespace korvane
