// A program that tests start on Windows in place of another one. It carries out orders and ends. Each is a
// word of its command line, or a line of the file "<program>.orders" if that is there:
//   folder, environment, arguments  prints them
//   input                           prints what it can read
//   copy:FROM:TO                    adds a file to another one
//   write:TO:TEXT, fill:TO:SIZE     adds to a file a text, or as many bytes
//   take:SIZE                       takes that much memory, and ends with 1 if it doesn't get it
//   hold:FILE                       starts itself to keep the file open
//   wait, exit:STATUS               does nothing for a long time, or ends with the status

#include <windows.h>
#include <shellapi.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// In milliseconds. Nothing is left for ever of a test that failed.
constexpr DWORD kLong = 300'000;

std::string Utf8(const fs::path& text) {
    const std::u8string bytes = text.u8string();
    return {bytes.begin(), bytes.end()};
}

fs::path Path(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

std::vector<std::string> CommandWords() {
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> all;
    for (int i = 1; i < count; ++i)
        all.push_back(Utf8(words[i]));
    LocalFree(words);
    return all;
}

fs::path OwnFile() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

std::vector<std::string> Orders() {
    fs::path file = OwnFile();
    file += ".orders";
    std::ifstream lines(file, std::ios::binary);
    const std::vector<std::string> words = CommandWords();
    // What keeps a file open gets its order from the program that started it.
    if (!lines || words == std::vector<std::string>{"wait"}) return words;
    std::vector<std::string> all;
    for (std::string line; std::getline(lines, line);)
        all.push_back(line);
    return all;
}

std::string Contents(std::istream& from) {
    std::ostringstream all;
    all << from.rdbuf();
    return all.str();
}

void Add(const std::string& file, const std::string& bytes) {
    std::ofstream(Path(file), std::ios::binary | std::ios::app) << bytes;
}

void PrintEnvironment() {
    const wchar_t* const block = GetEnvironmentStringsW();
    for (std::wstring_view line = block; !line.empty(); line = line.data() + line.size() + 1) {
        // Those of each drive begin with "=". The system adds them.
        if (line.front() != L'=') std::cout << Utf8(line) << '\n';
    }
}

void Hold(const std::string& file) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    CreateFileW(Path(file).c_str(), GENERIC_WRITE, 0, &inherited, CREATE_ALWAYS, 0, nullptr);
    std::wstring line = L"\"" + OwnFile().wstring() + L"\" wait";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION begun{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &begun))
        std::exit(1);
}

void Take(std::size_t size) {
    void* const block = VirtualAlloc(nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (block == nullptr) std::exit(1);
    VirtualFree(block, 0, MEM_RELEASE);
}

void Do(const std::string& order) {
    std::istringstream parts(order);
    std::string verb;
    std::string first;
    std::string rest;
    std::getline(parts, verb, ':');
    std::getline(parts, first, ':');
    std::getline(parts, rest);
    if (verb == "folder") std::cout << Utf8(fs::current_path()) << '\n';
    if (verb == "environment") PrintEnvironment();
    if (verb == "input") std::cout << Contents(std::cin);
    if (verb == "copy") {
        std::ifstream from(Path(first), std::ios::binary);
        Add(rest, Contents(from));
    }
    if (verb == "write") Add(first, rest);
    if (verb == "fill") Add(first, std::string(std::stoul(rest), 'x'));
    if (verb == "take") Take(std::stoull(first));
    if (verb == "hold") Hold(first);
    if (verb == "wait") Sleep(kLong);
    if (verb == "exit") std::exit(std::stoi(first));
    if (verb == "arguments") {
        for (const std::string& word : CommandWords())
            std::cout << word << '|';
    }
}

} // namespace

int main() {
    for (const std::string& order : Orders())
        Do(order);
}
