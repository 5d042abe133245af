#pragma once

#include "common/text/CodePage.h"
#include "common/text/Text.h"
#include "grid/ByteSearch.h"
#include "grid/Grid.h"
#include "grid/GrowingRun.h"
#include "grid/TextHandle.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// The texts of a table in few large blocks: the bytes of the loaded file, which are shared and never copied,
/// and other blocks for what was written since, as bytes of the code page or, where a character has no byte,
/// as 16-bit characters. The holder of the handles tells when one is given up, and has the blocks packed when
/// that pays. A copy shares the blocks and may be read in another thread.
class TextBlocks {
public:
    explicit TextBlocks(const CodePage& page) : page_(page) {}

    const CodePage& Page() const { return page_; }

    /// Takes a file's bytes for `Slice`. No handle may point to bytes adopted before.
    void Adopt(SharedBytes bytes);
    bool HasAdopted() const { return adopted_.size > 0; }
    const SharedBytes& Adopted() const { return adopted_; }
    std::string_view AdoptedBytes() const { return adopted_.View(); }

    bool HasSlice(std::size_t offset, std::size_t length) const {
        return offset <= adopted_.size && length <= adopted_.size - offset;
    }
    /// A part of the adopted bytes, which has to lie within them.
    TextHandle Slice(std::size_t offset, std::size_t length) {
        return HandleOf({TextHandle::Kind::Adopted, offset, length});
    }
    TextHandle Put(TextView text);
    /// The same of bytes of the code page.
    TextHandle PutBytes(std::string_view bytes);
    /// The text isn't used any more: its place is garbage until the next `Pack`.
    void GiveUp(TextHandle handle);

    /// The text as bytes; nothing for one that the code page can't hold.
    std::optional<std::string_view> Bytes(TextHandle handle) const;
    Text ToText(TextHandle handle) const;
    /// The number of its characters.
    std::size_t LengthOf(TextHandle handle) const { return PlaceOf(handle).length; }
    bool Equals(TextHandle handle, TextView text) const;
    /// Whether the text contains `part`; `pattern` is the same in bytes, or nothing.
    bool Contains(TextHandle handle, TextView part, const std::optional<BytePattern>& pattern) const;
    bool HasWideTexts() const { return wideTexts_ > 0; }

    /// Takes a text of another table's blocks. What it has of adopted bytes is shared where these blocks have
    /// adopted bytes, which must be the same ones.
    TextHandle TakeOver(const TextBlocks& other, TextHandle handle);
    /// Takes all texts of other blocks at once, where these are nothing but adopted bytes. Their handles hold
    /// here then. False when each text has to be taken over by itself.
    bool TakeOverAll(const TextBlocks& other);

    /// Whether there is more garbage than live text, so that packing frees at least half of the memory.
    bool WantsPacking() const;
    /// Moves the live texts together. `forEachHandle(visit)` calls `visit(TextHandle&)` for every handle in
    /// use. The adopted bytes are dropped when most of them are garbage, or when `dropAdopted` says so.
    template <class ForEachHandle>
    void Pack(const ForEachHandle& forEachHandle, bool dropAdopted = false) {
        TextBlocks packed(page_);
        if (!dropAdopted && !AdoptedIsMostlyGarbage()) packed.KeepAdoptedOf(*this);
        forEachHandle([this, &packed](TextHandle& handle) { handle = packed.TakeOver(*this, handle); });
        *this = std::move(packed);
    }

private:
    /// Place and length of a text in its block, whatever its size.
    struct Place {
        TextHandle::Kind kind;
        std::size_t offset;
        std::size_t length;

        std::size_t ByteSize() const {
            return kind == TextHandle::Kind::Wide ? length * sizeof(char16_t) : length;
        }
    };
    /// Bytes in use and given up.
    struct Use {
        std::size_t live = 0;
        std::size_t garbage = 0;
        bool operator==(const Use&) const = default;
    };

    Place PlaceOf(TextHandle handle) const;
    TextHandle HandleOf(const Place& place);
    std::string_view BytesAt(const Place& place) const;
    TextView WideAt(const Place& place) const;
    Use& UseOf(const Place& place);
    bool AppendAsBytes(TextView text);
    bool AdoptedIsMostlyGarbage() const { return adoptedUse_.garbage > adoptedUse_.live; }
    void KeepAdoptedOf(const TextBlocks& other);

    CodePage page_;
    SharedBytes adopted_;
    GrowingRun<char> bytes_;
    GrowingRun<char16_t> wide_;
    std::vector<Place> large_;
    Use adoptedUse_;
    Use ownUse_;
    std::size_t wideTexts_ = 0;
};

inline TextHandle TextBlocks::HandleOf(const Place& place) {
    if (place.length == 0) return {};
    UseOf(place).live += place.ByteSize();
    if (place.kind == TextHandle::Kind::Wide) ++wideTexts_;
    if (place.length <= TextHandle::kMaxLength && place.offset <= TextHandle::kMaxOffset)
        return {place.kind, place.offset, place.length};
    large_.push_back(place);
    return {TextHandle::Kind::Large, large_.size() - 1, 1};
}

inline TextBlocks::Use& TextBlocks::UseOf(const Place& place) {
    return place.kind == TextHandle::Kind::Adopted ? adoptedUse_ : ownUse_;
}

inline TextBlocks::Place TextBlocks::PlaceOf(TextHandle handle) const {
    if (handle.GetKind() == TextHandle::Kind::Large) return large_[handle.Offset()];
    return {handle.GetKind(), handle.Offset(), handle.Length()};
}

inline std::string_view TextBlocks::BytesAt(const Place& place) const {
    if (place.kind == TextHandle::Kind::Adopted) return {adopted_.data.get() + place.offset, place.length};
    return bytes_.Part(place.offset, place.length);
}

inline std::optional<std::string_view> TextBlocks::Bytes(TextHandle handle) const {
    if (handle.IsEmpty()) return std::string_view();
    const Place place = PlaceOf(handle);
    if (place.kind == TextHandle::Kind::Wide) return std::nullopt;
    return BytesAt(place);
}

} // namespace korvane
