#include "app/SystemParts.h"
#include "app/WindowsColours.h"
#include "app/WindowsRtf.h"
#include "platform/SystemFileTypes.h"
#include "platform/native/process/ChildProcess.h"
#include "platform/native/process/NativeDocumentConverter.h"
#include "platform/qt/look/Palettes.h"
#include "platform/qt/services/QtPatience.h"
#include "platform/windows/ExcelAutomation.h"
#include "platform/windows/FileIcons.h"
#include "platform/windows/FileTypeName.h"
#include "platform/windows/Win32CommandBox.h"
#include "platform/windows/Win32Shell.h"
#include "platform/windows/Win32SystemFolders.h"
#include "platform/windows/Win32WindowList.h"
#include "platform/windows/WindowHandOver.h"

#include <QCoreApplication>
#include <optional>

namespace korvane {

namespace {

class WindowsFileTypes final : public SystemFileTypes {
public:
    Text NameOf(TextView extension) const override { return FileTypeName(extension); }
    Text ImageOf(TextView extension) const override { return TypeIconName(extension); }
    Text OwnImage(TextView path) const override { return OwnIconName(path); }
};

class WindowsParts final : public SystemParts {
public:
    InstanceChannel& Channel() override { return channel_; }
    Shell& Desktop() override { return shell_; }
    const SystemFolders& Folders() const override { return folders_; }
    DocumentConverter* Converter() override { return &converter_; }
    std::unique_ptr<Spreadsheet> SpreadsheetApplication() override { return StartExcel(); }
    const SystemFileTypes* FileTypes() const override { return &fileTypes_; }
    void MainWindowShown(std::uintptr_t window) override {
        box_.MoveTo(window);
        QCoreApplication::instance()->installNativeEventFilter(&colours_);
        rtf_.emplace();
    }

private:
    Win32WindowList windows_;
    Win32CommandBox box_;
    WindowHandOver channel_{windows_, box_};
    Win32Shell shell_;
    Win32SystemFolders folders_;
    WindowsFileTypes fileTypes_;
    NativeDocumentConverter converter_{FindProgram, BeginPatience};
    WindowsColours colours_{FollowDesktopPalette};
    std::optional<WindowsRtf> rtf_;
};

} // namespace

std::unique_ptr<SystemParts> OwnSystemParts() {
    return std::make_unique<WindowsParts>();
}

} // namespace korvane
