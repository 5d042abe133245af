#include "e2e/Desk.h"

#include "SourceTree.h"

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <sstream>

namespace korvane::e2e {

namespace fs = std::filesystem;

namespace {

std::string FirstLine(int descriptor) {
    std::string line;
    for (char c = 0; read(descriptor, &c, 1) == 1 && c != '\n';)
        line += c;
    return line;
}

/// Starts a server that writes where it can be reached to a file descriptor. Returns what it has written.
std::string StartServer(std::unique_ptr<Process>& server, const Process::Environment& environment,
                        const std::function<std::vector<std::string>(const std::string&)>& command) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return "";
    server = std::make_unique<Process>(command(std::to_string(ends[1])), environment, ends[1]);
    close(ends[1]);
    const std::string place = FirstLine(ends[0]);
    close(ends[0]);
    return place;
}

} // namespace

Desk::Desk()
    : environment_{{"PATH", (folder_ / "bin").string() + ":" + std::getenv("PATH")},
                   {"HOME", folder_.Path().string()},
                   {"XDG_STATE_HOME", (folder_ / "state").string()},
                   {"XDG_RUNTIME_DIR", (folder_ / "run").string()},
                   {"LANG", "C.UTF-8"},
                   // Memory leaks of the system's libraries are ignored.
                   {"LSAN_OPTIONS", "print_suppressions=0:suppressions=" KORVANE_SOURCE_DIR
                                    "/tests/e2e/leaks-of-libraries.txt"},
                   {"QT_QPA_PLATFORM", "xcb"},
                   {"DISPLAY", ""}} {
    fs::create_directory(folder_ / "bin");
    fs::create_directory(folder_ / "run");
    fs::permissions(folder_ / "run", fs::perms::owner_all);
    // The program keeps its state in its own folder, so each desk gets its own copy.
    fs::copy_file(KORVANE_PROGRAM, folder_ / "korvane");
    fs::copy_file(KORVANE_NET, folder_ / fs::path(KORVANE_NET).filename());
    for (const auto* const name : {"Korvane.ini", "Korvane_Help.rtf"})
        fs::copy_file(fs::path(KORVANE_SOURCE_DIR "/packaging") / name, folder_ / name);
    StartDisplay();
}

void Desk::StartDisplay() {
    const std::string number = StartServer(server_, environment_, [](const std::string& descriptor) {
        return std::vector<std::string>{"Xvfb",        "-displayfd", descriptor, "-screen", "0",
                                        "1280x900x24", "-nolisten",  "tcp",      "-noreset"};
    });
    if (number.empty()) return;
    environment_["DISPLAY"] = ":" + number;
    display_ = std::make_unique<Display>(environment_["DISPLAY"]);
}

bool Desk::ProvideBus() {
    for (const auto* const part :
         {"/usr/bin/dbus-daemon", "/usr/bin/dbus-send", "/usr/libexec/at-spi-bus-launcher"})
        if (!fs::exists(part)) return false;
    const std::string address = StartServer(bus_, environment_, [](const std::string& descriptor) {
        return std::vector<std::string>{"dbus-daemon", "--session", "--nofork",
                                        "--print-address=" + descriptor};
    });
    environment_["DBUS_SESSION_BUS_ADDRESS"] = address;
    environment_["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1";
    return !address.empty();
}

bool Desk::GiveRightsAway() {
    if (geteuid() != 0) return true;
    const passwd* nobody = getpwnam("nobody");
    if (nobody == nullptr) return false;
    const auto give = [nobody](const fs::path& path) {
        return lchown(path.c_str(), nobody->pw_uid, nobody->pw_gid) == 0;
    };
    const fs::recursive_directory_iterator entries(folder_.Path());
    starter_ = {"setpriv", "--reuid", "nobody", "--regid", std::to_string(nobody->pw_gid), "--clear-groups"};
    return give(folder_.Path()) && std::all_of(begin(entries), end(entries), give);
}

bool Desk::Until(const std::function<bool()>& holds) {
    return e2e::Until(holds, {display_.get(), &files_});
}

bool Desk::Holds(const fs::path& file, const std::string& bytes) {
    return Until([&] {
        // A folder on the way to the file may be new since the last look.
        for (fs::path at = file.parent_path(); at != at.root_path() && at != folder_.Path();
             at = at.parent_path())
            files_.Watch(at);
        return ReadBytes(file) == bytes;
    });
}

std::unique_ptr<Process> Desk::Start(const std::vector<std::string>& arguments,
                                     const fs::path& folder) const {
    std::vector<std::string> command = starter_;
    command.push_back((folder_ / "korvane").string());
    command.insert(command.end(), arguments.begin(), arguments.end());
    return std::make_unique<Process>(command, environment_, -1, folder.string());
}

void Desk::Provide(const std::string& program) const {
    const fs::path path = folder_ / "bin" / program;
    WriteBytes(path, "#!/bin/sh\necho \"${0##*/} $*\" >> '" + (folder_ / "started").string() + "'\n");
    fs::permissions(path, fs::perms::owner_all);
}

std::string Desk::Started() const {
    return ReadBytes(folder_ / "started");
}

std::string Desk::Find(const std::string& title, const std::string& except) const {
    const auto found = Output({"xdotool", "search", "--onlyvisible", "--name", title}, environment_);
    std::istringstream windows(found.value_or(""));
    for (std::string window; std::getline(windows, window);) {
        if (window != except) return window;
    }
    return "";
}

std::string Desk::GoTo(const std::string& title, const std::string& except) {
    std::string window;
    const bool there = Until([&] {
        window = Find(title, except);
        if (window.empty() || !Output({"xdotool", "windowfocus", window}, environment_)) return false;
        return Focused() == window;
    });
    return there ? window : "";
}

std::string Desk::Focused() const {
    return Output({"xdotool", "getwindowfocus"}, environment_).value_or("");
}

bool Desk::Gone(const std::string& title, const std::string& except) {
    return Until([&] { return Find(title, except).empty(); });
}

void Desk::Press(const std::vector<std::string>& keys) const {
    if (keys.empty()) return;
    std::vector<std::string> command{"xdotool", "key", "--clearmodifiers"};
    command.insert(command.end(), keys.begin(), keys.end());
    Output(command, environment_);
}

void Desk::Type(const std::string& text) const {
    Output({"xdotool", "type", text}, environment_);
}

void Desk::ContextClick(const std::string& window, int x, int y) const {
    Output({"xdotool", "mousemove", "--window", window, std::to_string(x), std::to_string(y), "click", "3"},
           environment_);
}

} // namespace korvane::e2e
