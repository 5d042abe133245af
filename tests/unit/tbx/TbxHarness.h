#pragma once

#include "tbx/Tbx.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"

#include <new>
#include <optional>
#include <string>
#include <vector>

namespace korvane {

/// The command with a disk in memory.
class TbxHarness {
public:
    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Posix, clock};
    /// Nothing when the standard input can't be read.
    std::optional<std::string> input = "";
    CodePage page = CodePage::Windows1252();
    Text keptFolder;
    /// The file from which the standard input is read; empty for none.
    Text inputFile;

    /// Whether the memory isn't enough for the standard input.
    bool memoryIsFull = false;

    /// The outputs of the last run.
    std::string out;
    std::string err;

    ExitStatus Run(const std::vector<std::string>& arguments) {
        StringOutput outBytes;
        StringOutput errBytes;
        Environment environment{files,
                                outBytes,
                                errBytes,
                                [this] { return ReadInput(); },
                                page,
                                keptFolder,
                                [this](TextView path) { return files.IsSame(inputFile, path); }};
        const ExitStatus status = RunTbx(arguments, environment);
        outBytes.Flush();
        errBytes.Flush();
        out = outBytes.Bytes();
        err = errBytes.Bytes();
        return status;
    }

private:
    std::optional<std::string> ReadInput() const {
        if (memoryIsFull) throw std::bad_alloc();
        return input;
    }
};

/// A `.tbx` file in the writer's form: two columns "Name" and "Note", the rows and the end. Line ends are CR
/// LF.
std::string TbxFile(const std::vector<std::string>& dataLines);

/// The lines of one row with these cells, each one line.
std::vector<std::string> RowLines(int number, const std::vector<std::string>& cells);

} // namespace korvane
