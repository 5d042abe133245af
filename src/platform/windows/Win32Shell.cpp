#include "platform/windows/Win32Shell.h"

#include "common/path/ProcessCommandLine.h"
#include "common/path/WebAddress.h"
#include "common/text/CaseFold.h"
#include "platform/windows/RecycleStore.h"
#include "platform/windows/Win32SystemFolders.h"
#include "platform/windows/WindowsText.h"

#include <windows.h>
#include <objbase.h>
#include <oleauto.h>
#include <shellapi.h>
#include <shldisp.h>

#include <filesystem>
#include <memory>

namespace korvane {

namespace {

namespace fs = std::filesystem;

/// Keeps COM initialised for this thread. It does no harm when the thread has initialised COM already.
class ObjectsInUse {
public:
    ObjectsInUse() : entered_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ObjectsInUse(const ObjectsInUse&) = delete;
    ObjectsInUse& operator=(const ObjectsInUse&) = delete;
    ~ObjectsInUse() {
        if (entered_) CoUninitialize();
    }

private:
    bool entered_;
};

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};

struct FreeText {
    void operator()(OLECHAR* text) const { SysFreeString(text); }
};

/// A new shell object, or nullptr when the system has none.
std::unique_ptr<IShellDispatch4, Release> NewShellObject() {
    void* object = nullptr;
    const HRESULT result =
        CoCreateInstance(CLSID_Shell, nullptr, CLSCTX_SERVER, IID_IShellDispatch4, &object);
    return std::unique_ptr<IShellDispatch4, Release>(SUCCEEDED(result) ? static_cast<IShellDispatch4*>(object)
                                                                       : nullptr);
}

/// The absolute path. It can't be mistaken for a web address or for the registered name of a program.
std::wstring FullPath(TextView path) {
    std::error_code error;
    return fs::absolute(ToWide(path), error).wstring();
}

/// The path to open. For the file manager it is the system's own, and not a file with that name in the
/// current directory.
std::wstring FileOf(const OpenRequest& request) {
    if (!EqualIgnoringCase(request.file, kFileManager)) return FullPath(request.file);
    return ToWide(Win32SystemFolders().Windows() + u"\\" + request.file);
}

/// The folder to start in. A path that isn't a folder is ignored.
std::wstring FolderToStartIn(TextView directory) {
    std::error_code error;
    const fs::path folder = ToWide(directory);
    return fs::is_directory(folder, error) ? folder.wstring() : std::wstring();
}

const wchar_t* OrNull(const std::wstring& text) {
    return text.empty() ? nullptr : text.c_str();
}

/// Windows shows no message of its own about what can't be opened.
void Execute(SHELLEXECUTEINFOW& execute) {
    const ObjectsInUse objects;
    execute.cbSize = sizeof execute;
    execute.fMask = SEE_MASK_FLAG_NO_UI;
    execute.nShow = SW_SHOWNORMAL;
    ShellExecuteExW(&execute);
}

} // namespace

int Win32Shell::Run(TextView program, const std::vector<Text>& arguments, WindowState window) {
    const Text interpreter = Win32SystemFolders().System() + u"\\cmd.exe";
    const auto commandLine = ProcessCommandLine(program, arguments, interpreter);
    if (!commandLine) return 0;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = window == WindowState::Minimised ? SW_SHOWMINIMIZED : SW_SHOWNORMAL;
    PROCESS_INFORMATION process{};
    std::wstring line = ToWide(*commandLine);
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process))
        return 0;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(process.dwProcessId);
}

void Win32Shell::Open(const OpenRequest& request) {
    if (request.file.empty()) return;
    const std::wstring verb = ToWide(request.verb);
    const std::wstring file = FileOf(request);
    const std::wstring parameters = ToWide(request.parameters);
    const std::wstring directory = FolderToStartIn(request.directory);
    SHELLEXECUTEINFOW execute{};
    execute.lpVerb = verb.c_str();
    execute.lpFile = file.c_str();
    execute.lpParameters = OrNull(parameters);
    execute.lpDirectory = OrNull(directory);
    Execute(execute);
}

void Win32Shell::Browse(TextView address) {
    if (!IsForBrowsers(address)) return;
    const std::wstring wide = ToWide(address);
    SHELLEXECUTEINFOW execute{};
    execute.lpVerb = L"open";
    execute.lpFile = wide.c_str();
    Execute(execute);
}

void Win32Shell::Explore(TextView folder) {
    const ObjectsInUse objects;
    const auto shell = NewShellObject();
    if (folder.empty() || !shell) return;
    const std::wstring path = FullPath(folder);
    const std::unique_ptr<OLECHAR, FreeText> text(SysAllocString(path.c_str()));
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = VT_BSTR;
    argument.bstrVal = text.get();
    shell->Explore(argument);
}

bool Win32Shell::Recycle(TextView path, RecycleTalk talk) {
    return MoveToRecycleStore(path, talk);
}

void Win32Shell::ToggleDesktop() {
    const ObjectsInUse objects;
    if (const auto shell = NewShellObject()) shell->ToggleDesktop();
}

void Win32Shell::Beep() {
    MessageBeep(MB_OK);
}

} // namespace korvane
