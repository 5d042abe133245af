#pragma once

#include "platform/windows/WindowsText.h"
#include "support/TempDir.h"

#include <windows.h>

#include <array>
#include <filesystem>
#include <string>

namespace korvane {

/// What a test shares with the program that it starts: a file that the program writes and the test reads, and
/// an event that says when the file is written.
class Probe {
public:
    Probe() : event_(CreateEventW(nullptr, TRUE, FALSE, ToWide(Event()).c_str())) {}
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;
    ~Probe() { CloseHandle(event_); }

    static Text Program() {
        std::array<wchar_t, 32768> path{};
        GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        return FromWide((std::filesystem::path(path.data()).parent_path() / "windows_probe.exe").wstring());
    }

    Text File() const { return FromWide((dir_ / "told.txt").wstring()); }
    Text Event() const { return u"Local\\" + FromWide(dir_.Path().filename().wstring()); }

    /// Waits up to a minute for the program to set the event.
    bool Ready() const { return WaitForSingleObject(event_, 60'000) == WAIT_OBJECT_0; }
    std::string Told() const { return ReadBytes(dir_ / "told.txt"); }
    const TempDir& Dir() const { return dir_; }

private:
    TempDir dir_;
    HANDLE event_;
};

} // namespace korvane
