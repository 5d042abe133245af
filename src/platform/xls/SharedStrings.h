#pragma once

#include "common/text/Text.h"
#include "platform/ChunkedOutput.h"
#include "platform/xls/LittleEndian.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::xls {

/// The texts of a workbook, each once; cells give them by their number. They are kept in the form of the
/// file, with the places at which one record ends and the next goes on.
class SharedStrings {
public:
    /// The longest text that a cell holds.
    static constexpr std::size_t kMaxLength = 32767;

    SharedStrings();

    /// The number of the text, counted from 0. It is neither empty nor longer than `kMaxLength`.
    U32 Add(TextView text);
    U32 Count() const { return static_cast<U32>(starts_.size() - 1); }

    /// How many bytes `Write` writes.
    std::size_t RecordsSize() const;
    void Write(ChunkedOutput& output) const;

private:
    /// A place among the bytes at which a new record begins.
    struct Cut {
        std::size_t at;
        /// The place is inside a text, and the new record repeats the width of its characters.
        bool insideText;
        char width;
    };
    /// A place of the table that finds texts.
    struct Slot {
        U32 hash = 0;
        U32 number = kNone;
    };
    static constexpr U32 kNone = 0xFFFFFFFF;

    void Encode(TextView text);
    std::string_view BytesOf(U32 number) const;
    /// The slot of the text, or the one where it goes.
    Slot& SlotOf(std::string_view encoded, std::size_t hash);
    void GrowSlots();
    void LayOut(std::string_view encoded);
    void LayOutCharacters(std::size_t at, std::size_t end, char width);

    std::string bytes_;
    /// Where each text begins, and the end of the last one.
    std::vector<std::size_t> starts_{0};
    std::vector<Slot> slots_;
    std::vector<Cut> cuts_;
    /// Bytes of data in the record that is being filled.
    std::size_t recordFill_;
    U32 uses_ = 0;
};

} // namespace korvane::xls
