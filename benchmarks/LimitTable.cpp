#include "LimitTable.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace korvane::bench {

namespace {

constexpr int kRows = 32767;
constexpr int kCols = 24;

constexpr std::array<std::string_view, 32> kWords{"the",
                                                  "river",
                                                  "a",
                                                  "letter",
                                                  "from",
                                                  "Aunt",
                                                  "Marie",
                                                  "1987",
                                                  "with",
                                                  "blue",
                                                  "of",
                                                  "garden",
                                                  "and",
                                                  "notes",
                                                  "tel.",
                                                  "+44",
                                                  "street",
                                                  "in",
                                                  "B\xFC"
                                                  "cher",
                                                  "caf\xE9",
                                                  "is",
                                                  "to",
                                                  "return",
                                                  "by",
                                                  "Tuesday",
                                                  "about",
                                                  "volume",
                                                  "second",
                                                  "hand",
                                                  "edition",
                                                  "lent",
                                                  "out,"};

/// Numbers that look random but are the same on every machine.
class Chance {
public:
    std::uint32_t Below(std::uint32_t bound) {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 7;
        state_ ^= state_ << 17;
        return static_cast<std::uint32_t>(state_ >> 32) % bound;
    }
    bool OneIn(std::uint32_t times) { return Below(times) == 0; }

private:
    std::uint64_t state_ = 0x9E3779B97F4A7C15u;
};

class Generator {
public:
    std::string Make() {
        Put(";\n; Values for colour, font type, font size, cell height, cell width\n;\n");
        Put("!16777215\n!Calibri\n!12\n!372\n;\n; Column names\n;\n");
        for (int col = 1; col <= kCols; ++col)
            Put("!Column " + std::to_string(col) + "\n!1920\n");
        Put(";\n; File data\n;\n");
        for (int row = 1; row <= kRows; ++row)
            PutRow(row);
        Put(";\n; End of File: limit.tbx\n;\n");
        return std::move(bytes_);
    }

private:
    void Put(std::string_view text) {
        for (const char c : text)
            bytes_ += c == '\n' ? "\r\n" : std::string_view(&c, 1);
    }
    void PutRow(int row) {
        Put("@row_" + std::to_string(row) + (chance_.OneIn(4) ? "\n?10" : "\n?00"));
        Put(chance_.OneIn(10) ? "B0\n" : "00\n");
        Put("\xA7" + std::string(chance_.OneIn(8) ? "65535" : "-1") + "\n\xA7-1\n");
        for (int col = 1; col <= kCols; ++col) {
            Put("@col_" + std::to_string(col) + "\n");
            PutText();
            Put("\n");
        }
    }
    /// Adds a text of 20 to 70 bytes. One text in twelve has several lines.
    void PutText() {
        const std::size_t wanted = bytes_.size() + 16 + chance_.Below(50);
        const bool inLines = chance_.OneIn(12);
        Put(kWords[chance_.Below(kWords.size())]);
        while (bytes_.size() < wanted) {
            Put(inLines && chance_.OneIn(3) ? "\n" : " ");
            Put(kWords[chance_.Below(kWords.size())]);
        }
    }

    std::string bytes_;
    Chance chance_;
};

class LimitTableFile {
public:
    LimitTableFile() : path_((std::filesystem::temp_directory_path() / "korvane_bench_limit.tbx").string()) {
        std::ofstream(path_, std::ios::binary) << LimitTableBytes();
    }
    LimitTableFile(const LimitTableFile&) = delete;
    LimitTableFile& operator=(const LimitTableFile&) = delete;
    ~LimitTableFile() { std::filesystem::remove(path_); }

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

} // namespace

const std::string& LimitTableBytes() {
    static const std::string bytes = Generator().Make();
    return bytes;
}

const std::string& LimitTablePath() {
    static const LimitTableFile file;
    return file.Path();
}

} // namespace korvane::bench
