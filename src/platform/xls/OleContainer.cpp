#include "platform/xls/OleContainer.h"

#include <algorithm>
#include <array>

namespace korvane::xls {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kSector = 512;
constexpr U32 kEntriesInFatSector = kSector / sizeof(U32);
/// The last entry of such a sector says where the next one is.
constexpr U32 kEntriesInDifatSector = kEntriesInFatSector - 1;
constexpr U32 kEntriesInHeader = 109;
/// Smaller streams would have to go into a special stream for small ones.
constexpr std::size_t kSmallestStream = 4096;

constexpr U32 kDifatSector = 0xFFFFFFFC;
constexpr U32 kFatSector = 0xFFFFFFFD;
constexpr U32 kEndOfChain = 0xFFFFFFFE;
constexpr U32 kFree = 0xFFFFFFFF;
constexpr U32 kNoStream = 0xFFFFFFFF;

constexpr std::string_view kSignature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"sv;

constexpr std::size_t RoundedUp(std::size_t size, std::size_t unit) {
    return (size + unit - 1) / unit;
}

U32 DifatSectorsFor(U32 fatSectors) {
    const U32 past = fatSectors - std::min(fatSectors, kEntriesInHeader);
    return static_cast<U32>(RoundedUp(past, kEntriesInDifatSector));
}

enum class EntryKind : U8 { Unused = 0, Stream = 2, Root = 5 };

struct DirectoryEntry {
    EntryKind kind = EntryKind::Unused;
    TextView name{};
    U32 child = kNoStream;
    std::string_view classId = "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"sv;
    U32 firstSector = 0;
    U32 size = 0;
};

void AppendName(std::string& bytes, TextView name) {
    constexpr std::size_t kUnits = 32;
    for (std::size_t i = 0; i < kUnits; ++i)
        AppendLittle(bytes, static_cast<U16>(i < name.size() ? name[i] : u'\0'));
    // The length counts bytes, with the zero after the name.
    AppendLittle(bytes, static_cast<U16>(name.empty() ? 0 : (name.size() + 1) * 2));
}

void Append(std::string& bytes, const DirectoryEntry& entry) {
    constexpr U8 kBlack = 1;
    AppendName(bytes, entry.name);
    AppendLittle(bytes, static_cast<U8>(entry.kind), kBlack, kNoStream, kNoStream, entry.child);
    bytes.append(entry.classId);
    bytes.append(sizeof(U32), '\0');               // user's flags
    bytes.append(2 * sizeof(std::uint64_t), '\0'); // times of making and changing
    AppendLittle(bytes, entry.firstSector, entry.size, U32{0});
}

} // namespace

OleContainer::OleContainer(std::string_view classId, TextView streamName, std::size_t streamSize)
    : classId_(classId),
      streamName_(streamName),
      streamSize_(streamSize),
      streamSectors_(static_cast<U32>(RoundedUp(std::max(streamSize, kSmallestStream), kSector))) {
    // The sectors of the tables are in the tables too.
    for (;;) {
        const U32 sectors = FirstFatSector() + fatSectors_ + difatSectors_;
        const auto needed = static_cast<U32>(RoundedUp(sectors, kEntriesInFatSector));
        if (needed == fatSectors_) break;
        fatSectors_ = needed;
        difatSectors_ = DifatSectorsFor(needed);
    }
}

std::string OleContainer::Front() const {
    constexpr U16 kMinorVersion = 0x3E;
    constexpr U16 kMajorVersion = 3;
    constexpr U16 kLittleEndian = 0xFFFE;
    constexpr U16 kSectorShift = 9;
    constexpr U16 kMiniSectorShift = 6;
    constexpr std::size_t kUnusedBeforeSectors = 6 + sizeof(U32);
    std::string bytes(kSignature);
    bytes.append(16, '\0');
    AppendLittle(bytes, kMinorVersion, kMajorVersion, kLittleEndian, kSectorShift, kMiniSectorShift);
    bytes.append(kUnusedBeforeSectors, '\0');
    AppendLittle(bytes, fatSectors_, streamSectors_, U32{0}, static_cast<U32>(kSmallestStream));
    AppendLittle(bytes, kEndOfChain, U32{0}); // no stream for small ones
    AppendLittle(bytes, difatSectors_ == 0 ? kEndOfChain : FirstFatSector() + fatSectors_, difatSectors_);
    for (U32 i = 0; i < kEntriesInHeader; ++i)
        AppendLittle(bytes, i < fatSectors_ ? FirstFatSector() + i : kFree);
    return bytes;
}

std::string OleContainer::Back() const {
    std::string bytes(streamSectors_ * kSector - streamSize_, '\0');
    AppendDirectory(bytes);
    AppendFat(bytes);
    AppendDifat(bytes);
    return bytes;
}

void OleContainer::AppendDirectory(std::string& bytes) const {
    const auto size = static_cast<U32>(std::max(streamSize_, kSmallestStream));
    Append(bytes, {.kind = EntryKind::Root,
                   .name = u"Root Entry",
                   .child = 1,
                   .classId = classId_,
                   .firstSector = kEndOfChain});
    Append(bytes, {.kind = EntryKind::Stream, .name = streamName_, .size = size});
    Append(bytes, {});
    Append(bytes, {});
}

void OleContainer::AppendFat(std::string& bytes) const {
    for (U32 next = 1; next < streamSectors_; ++next)
        AppendLittle(bytes, next);
    AppendLittle(bytes, kEndOfChain, kEndOfChain); // of the stream, and of the directory
    for (U32 i = 0; i < fatSectors_; ++i)
        AppendLittle(bytes, kFatSector);
    for (U32 i = 0; i < difatSectors_; ++i)
        AppendLittle(bytes, kDifatSector);
    const U32 used = FirstFatSector() + fatSectors_ + difatSectors_;
    for (U32 i = used; i < fatSectors_ * kEntriesInFatSector; ++i)
        AppendLittle(bytes, kFree);
}

void OleContainer::AppendDifat(std::string& bytes) const {
    const U32 firstDifatSector = FirstFatSector() + fatSectors_;
    U32 listed = kEntriesInHeader;
    for (U32 sector = 1; sector <= difatSectors_; ++sector) {
        for (U32 i = 0; i < kEntriesInDifatSector; ++i, ++listed)
            AppendLittle(bytes, listed < fatSectors_ ? FirstFatSector() + listed : kFree);
        AppendLittle(bytes, sector < difatSectors_ ? firstDifatSector + sector : kEndOfChain);
    }
}

} // namespace korvane::xls
