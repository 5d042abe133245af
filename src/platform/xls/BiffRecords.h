#pragma once

#include "platform/xls/LittleEndian.h"

#include <cstddef>
#include <string>
#include <string_view>

// The records of a workbook stream, version 8 of the format. Public source: the format as Microsoft publishes
// it, [MS-XLS] "Excel Binary File Format (.xls) Structure", sections 2.1.4 and 2.4.

namespace korvane::xls {

enum class RecordType : U16 {
    Eof = 0x000A,
    CalcCount = 0x000C,
    CalcMode = 0x000D,
    CalcPrecision = 0x000E,
    CalcRefMode = 0x000F,
    CalcDelta = 0x0010,
    CalcIter = 0x0011,
    Protect = 0x0012,
    Password = 0x0013,
    Header = 0x0014,
    Footer = 0x0015,
    WinProtect = 0x0019,
    Selection = 0x001D,
    Date1904 = 0x0022,
    PrintRowCol = 0x002A,
    PrintGrid = 0x002B,
    Font = 0x0031,
    Continue = 0x003C,
    Window1 = 0x003D,
    Backup = 0x0040,
    CodePage = 0x0042,
    DefColWidth = 0x0055,
    WriteAccess = 0x005C,
    CalcSaveRecalc = 0x005F,
    ColInfo = 0x007D,
    Guts = 0x0080,
    WsBool = 0x0081,
    GridSet = 0x0082,
    HCenter = 0x0083,
    VCenter = 0x0084,
    BoundSheet = 0x0085,
    Country = 0x008C,
    HideObj = 0x008D,
    BuiltInFnGroupCount = 0x009C,
    Setup = 0x00A1,
    Mms = 0x00C1,
    DbCell = 0x00D7,
    BookBool = 0x00DA,
    Xf = 0x00E0,
    InterfaceHdr = 0x00E1,
    InterfaceEnd = 0x00E2,
    Sst = 0x00FC,
    LabelSst = 0x00FD,
    TabId = 0x013D,
    Dsf = 0x0161,
    Prot4Rev = 0x01AF,
    RefreshAll = 0x01B7,
    Prot4RevPass = 0x01BC,
    Dimensions = 0x0200,
    Blank = 0x0201,
    Row = 0x0208,
    Index = 0x020B,
    DefaultRowHeight = 0x0225,
    Window2 = 0x023E,
    Style = 0x0293,
    Bof = 0x0809,
};

/// Type and length, which come before a record's data.
inline constexpr std::size_t kRecordHead = 4;
/// The most data that one record holds.
inline constexpr std::size_t kMaxRecordData = 8224;

/// A record with these numbers as its data, each as wide as its type.
template <std::unsigned_integral... Ints>
void AppendRecord(std::string& bytes, RecordType type, Ints... data) {
    AppendLittle(bytes, static_cast<U16>(type), static_cast<U16>((sizeof(Ints) + ... + 0)), data...);
}

/// A record with these bytes as its data.
inline void AppendRecord(std::string& bytes, RecordType type, std::string_view data) {
    AppendLittle(bytes, static_cast<U16>(type), static_cast<U16>(data.size()));
    bytes.append(data);
}

} // namespace korvane::xls
