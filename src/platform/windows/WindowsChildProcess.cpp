#include "common/path/ProcessCommandLine.h"
#include "platform/native/SystemCalls.h"
#include "platform/native/process/ChildProcess.h"
#include "platform/windows/WindowsText.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>

namespace korvane {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

/// In milliseconds.
constexpr DWORD kBetweenLooks = 50;
constexpr DWORD kForEnd = 5'000;

struct CloseIt {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, CloseIt>;

/// A file that the other program gets.
Handle OpenForChild(const fs::path& path, DWORD access, DWORD how) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const HANDLE file = CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, how,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    return Handle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

/// The three standard files of the other program. It gets no other ones.
class ChildFiles {
public:
    explicit ChildFiles(const fs::path& output)
        : in_(OpenForChild("NUL", GENERIC_READ, OPEN_EXISTING)),
          out_(OpenForChild(output.empty() ? "NUL" : output, GENERIC_WRITE, CREATE_ALWAYS)),
          nowhere_(OpenForChild("NUL", GENERIC_WRITE, OPEN_EXISTING)),
          all_{in_.get(), out_.get(), nowhere_.get()} {
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        bytes_.resize(size);
        given_ = InitializeProcThreadAttributeList(List(), 1, 0, &size) &&
                 UpdateProcThreadAttribute(List(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, all_.data(),
                                           sizeof all_, nullptr, nullptr);
    }
    ChildFiles(const ChildFiles&) = delete;
    ChildFiles& operator=(const ChildFiles&) = delete;
    ~ChildFiles() { DeleteProcThreadAttributeList(List()); }

    bool Ready() const { return given_ && in_ && out_ && nowhere_; }

    STARTUPINFOEXW Start() {
        STARTUPINFOEXW start{};
        start.StartupInfo.cb = sizeof start;
        start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
        start.StartupInfo.hStdInput = all_[0];
        start.StartupInfo.hStdOutput = all_[1];
        start.StartupInfo.hStdError = all_[2];
        start.lpAttributeList = List();
        return start;
    }

private:
    LPPROC_THREAD_ATTRIBUTE_LIST List() {
        return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(bytes_.data());
    }

    Handle in_;
    Handle out_;
    Handle nowhere_;
    std::array<HANDLE, 3> all_;
    std::vector<std::byte> bytes_;
    bool given_ = false;
};

/// The program with all that it starts. They end with this object, and it waits for that, because nobody can
/// delete the files that they have open.
class Job {
public:
    explicit Job(std::size_t memory) : job_(CreateJobObjectW(nullptr, nullptr)) {
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE |
                                                  JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION |
                                                  JOB_OBJECT_LIMIT_JOB_MEMORY;
        limits.JobMemoryLimit = memory;
        limited_ = SetInformationJobObject(job_.get(), JobObjectExtendedLimitInformation, &limits,
                                           sizeof limits) != 0;
        // It has no business with the user's clipboard, settings and session.
        JOBOBJECT_BASIC_UI_RESTRICTIONS desk{};
        desk.UIRestrictionsClass = JOB_OBJECT_UILIMIT_READCLIPBOARD | JOB_OBJECT_UILIMIT_WRITECLIPBOARD |
                                   JOB_OBJECT_UILIMIT_SYSTEMPARAMETERS | JOB_OBJECT_UILIMIT_DISPLAYSETTINGS |
                                   JOB_OBJECT_UILIMIT_EXITWINDOWS;
        SetInformationJobObject(job_.get(), JobObjectBasicUIRestrictions, &desk, sizeof desk);
    }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;
    ~Job() {
        TerminateJobObject(job_.get(), 1);
        for (DWORD waited = 0; IsRunning() && waited < kForEnd; waited += kBetweenLooks)
            Sleep(kBetweenLooks);
    }

    bool Takes(HANDLE process) { return limited_ && AssignProcessToJobObject(job_.get(), process); }

private:
    bool IsRunning() const {
        JOBOBJECT_BASIC_ACCOUNTING_INFORMATION facts{};
        return QueryInformationJobObject(job_.get(), JobObjectBasicAccountingInformation, &facts,
                                         sizeof facts, nullptr) &&
               facts.ActiveProcesses > 0;
    }

    Handle job_;
    bool limited_ = false;
};

std::wstring OwnValue(const wchar_t* name) {
    const wchar_t* const value = _wgetenv(name);
    return value == nullptr ? std::wstring() : value;
}

/// Without the folder of Windows, programs don't start.
std::wstring EnvironmentOf(const fs::path& folder) {
    const std::wstring own = folder.wstring();
    const std::wstring windows = OwnValue(L"SystemRoot");
    std::wstring block;
    for (const std::wstring& line :
         {L"APPDATA=" + own, L"LOCALAPPDATA=" + own, L"PATH=" + windows + L"\\system32;" + windows,
          L"SystemDrive=" + OwnValue(L"SystemDrive"), L"SystemRoot=" + windows, L"TEMP=" + own, L"TMP=" + own,
          L"USERPROFILE=" + own, L"windir=" + windows})
        block.append(line).append(1, L'\0');
    return block.append(1, L'\0');
}

std::optional<std::wstring> CommandLineOf(const ChildTask& task) {
    std::vector<Text> arguments;
    for (const std::string& argument : task.arguments)
        arguments.push_back(FromUtf8(argument));
    const auto line = ProcessCommandLine(FromWide(task.program.wstring()), arguments, {});
    return line ? std::optional(ToWide(*line)) : std::nullopt;
}

/// The system has no limit for files, so they are looked at. A file that is open may look smaller than it is.
bool HasLargeFile(const ChildTask& task) {
    std::error_code error;
    for (fs::recursive_directory_iterator at(task.folder, error), end; !error && at != end;
         at.increment(error)) {
        std::error_code gone;
        const auto size = at->is_regular_file(gone) ? at->file_size(gone) : 0;
        if (!gone && size > task.fileSize) return true;
    }
    return false;
}

ChildEnd HowItEnded(HANDLE process, const ChildTask& task) {
    DWORD status = 1;
    return GetExitCodeProcess(process, &status) && status == 0 && !HasLargeFile(task) ? ChildEnd::Succeeded
                                                                                      : ChildEnd::Failed;
}

ChildEnd WaitFor(HANDLE process, const ChildTask& task, const std::function<bool()>& goOn) {
    const Clock::time_point end = Clock::now() + task.time;
    while (WaitForSingleObject(process, kBetweenLooks) != WAIT_OBJECT_0) {
        if (Clock::now() >= end) return ChildEnd::TimedOut;
        if (!goOn()) return ChildEnd::Cancelled;
        if (HasLargeFile(task)) return ChildEnd::Failed;
    }
    return HowItEnded(process, task);
}

/// The program as its installation has told the system; empty if it hasn't.
fs::path RegisteredProgram(const std::wstring& file) {
    const std::wstring key = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\" + file;
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        std::array<wchar_t, MAX_PATH> value{};
        DWORD bytes = sizeof value;
        if (RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, value.data(), &bytes) ==
            ERROR_SUCCESS)
            return value.data();
    }
    return {};
}

/// Below the folders of programs.
constexpr const wchar_t* kUsualFolders[] = {L"LibreOffice\\program", L"poppler\\Library\\bin",
                                            L"poppler\\bin", L"antiword"};

std::vector<fs::path> UsualFolders() {
    std::vector<fs::path> folders;
    for (const wchar_t* programs : {L"ProgramFiles", L"ProgramW6432", L"ProgramFiles(x86)"}) {
        for (const wchar_t* folder : kUsualFolders)
            folders.push_back(fs::path(OwnValue(programs)) / folder);
    }
    // Not every such program has an installation. A user may unpack one beside this program.
    folders.push_back(system_calls::ExecutablePath().parent_path());
    return folders;
}

std::vector<fs::path> FoldersOfPath() {
    std::vector<fs::path> folders;
    const std::wstring path = OwnValue(L"PATH");
    std::wstring_view rest = path;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(L';'), rest.size());
        folders.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return folders;
}

/// A folder that isn't named in full would be searched for in the current one, which anybody may have filled.
bool IsProgramFile(const fs::path& file) {
    std::error_code error;
    return file.is_absolute() && fs::is_regular_file(file, error);
}

} // namespace

ChildEnd RunChild(const ChildTask& task, const std::function<bool()>& goOn) {
    auto line = CommandLineOf(task);
    ChildFiles files(task.output);
    Job job(task.memory);
    if (!line || !files.Ready()) return ChildEnd::Failed;
    std::wstring environment = EnvironmentOf(task.folder);
    STARTUPINFOEXW start = files.Start();
    PROCESS_INFORMATION begun{};
    // It waits until it is in the job, so that it can start nothing outside.
    constexpr DWORD kHow =
        CREATE_SUSPENDED | CREATE_NO_WINDOW | CREATE_UNICODE_ENVIRONMENT | EXTENDED_STARTUPINFO_PRESENT;
    if (!CreateProcessW(task.program.c_str(), line->data(), nullptr, nullptr, TRUE, kHow, environment.data(),
                        task.folder.c_str(), &start.StartupInfo, &begun))
        return ChildEnd::Failed;
    const Handle process(begun.hProcess);
    const Handle thread(begun.hThread);
    if (!job.Takes(process.get())) {
        TerminateProcess(process.get(), 1);
        return ChildEnd::Failed;
    }
    ResumeThread(thread.get());
    return WaitFor(process.get(), task, goOn);
}

fs::path FindProgram(const std::string& name) {
    const std::wstring file = ToWide(FromUtf8(name)) + L".exe";
    std::vector<fs::path> places{RegisteredProgram(file)};
    for (const auto& folders : {UsualFolders(), FoldersOfPath()}) {
        for (const fs::path& folder : folders)
            places.push_back(folder / file);
    }
    const auto found = std::ranges::find_if(places, IsProgramFile);
    return found == places.end() ? fs::path() : *found;
}

} // namespace korvane
