#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace korvane {

/// Another program that does something with files in a folder and ends by itself.
struct ChildTask {
    /// The program's file, and its arguments, which are UTF-8. No shell reads them.
    std::filesystem::path program{};
    std::vector<std::string> arguments{};
    /// Where it runs. It has its temporary files and its settings there too.
    std::filesystem::path folder{};
    /// What it prints goes to this file; nowhere if it is empty.
    std::filesystem::path output{};

    std::chrono::milliseconds time{30'000};
    /// The most that it may have in memory, and in a file.
    std::size_t memory = std::size_t{4} << 30;
    std::size_t fileSize = std::size_t{256} << 20;
};

enum class ChildEnd : std::uint8_t { Succeeded, Failed, TimedOut, Cancelled };

/// Runs the program and waits for its end. `goOn` is asked many times a second; false ends the program, with
/// all that it started. The program sees nothing of this one's environment and files, and no network where
/// the system lets it be kept from it.
ChildEnd RunChild(const ChildTask& task, const std::function<bool()>& goOn);

/// The file of a program, whose name is without an extension; empty if it isn't installed.
std::filesystem::path FindProgram(const std::string& name);

} // namespace korvane
