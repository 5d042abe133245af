#pragma once

#include "app/OwnFiles.h"
#include "app/SystemParts.h"
#include "context/App.h"
#include "context/ports/SecretHolder.h"
#include "extras/web/Pages.h"
#include "extras/web/Websites.h"
#include "files/lister/Lister.h"
#include "files/lists/FileHandling.h"
#include "kept/KeptTables.h"
#include "kept/KeptTexts.h"
#include "platform/native/NativeClock.h"
#include "platform/native/NativeFileSystem.h"
#include "platform/native/NativePatientDisk.h"
#include "platform/native/process/ChildProcess.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/dialogs/QtPickers.h"
#include "platform/qt/dialogs/QtSystemFileDialog.h"
#include "platform/qt/net/LoadedNetwork.h"
#include "platform/qt/net/LoadedWebEngines.h"
#include "platform/qt/picture/QtPictureFiles.h"
#include "platform/qt/services/QtBackground.h"
#include "platform/qt/services/QtClipboard.h"
#include "platform/qt/services/QtFileTypes.h"
#include "platform/qt/services/QtFonts.h"
#include "platform/qt/services/QtFrontWindow.h"
#include "platform/qt/services/QtScreen.h"
#include "platform/qt/services/QtUserLocale.h"
#include "text/ClipboardWindow.h"
#include "text/control/TextControlWindows.h"
#include "text/files/DocumentFiles.h"
#include "text/find/FindWindow.h"
#include "text/formats/FontWindows.h"
#include "text/insert/InsertWindows.h"
#include "text/markup/TagPairs.h"
#include "text/window/TextWindows.h"
#include "text/words/WordListWindow.h"

#include <QString>

namespace korvane {

class frmMDIParent;

/// The whole program, made of its real parts.
class Program {
public:
    /// All arguments but the files must outlive the program.
    Program(SystemParts& system, NativeFileSystem files, InstanceChannel& channel, MessageBoxes& messages);

    /// Runs until the main window is closed, or, in a second start, until its file is handed over. Returns
    /// the exit status.
    int Run(const Text& path);
    /// Draws the main window with the file into a picture and ends without changing anything else. Returns
    /// the exit status.
    int Render(const Text& path, const QString& picture);

private:
    bool CloseUnasked(frmMDIParent& main);

    /// Keeps the memory from others until it is gone, which is later than the settings with the password.
    class MemoryLock final : public SecretHolder {
    public:
        ~MemoryLock() override;
        void Hold() override;
    };

    SystemParts& system_;
    MemoryLock memoryLock_;
    NativeFileSystem files_;
    /// For the background alone.
    NativeFileSystem backgroundFiles_;
    QtBackground background_{backgroundFiles_};
    NativePatientDisk patientDisk_{[] { return std::make_unique<NativeFileSystem>(OwnFiles()); }};
    QtClipboard clipboard_;
    NativeClock clock_;
    QtScreen screen_;
    QtUserLocale locale_;
    QtFileTypes fileTypes_{system_.FileTypes()};
    QtFonts fonts_;
    QtFormHost forms_;
    QtSystemFileDialog systemFileDialog_;
    QtFrontWindow frontWindow_;
    QtFontDialog fontDialog_;
    QtColourPicker colourPicker_;
    QtPictureFiles pictureFiles_;
    App app_;
    ClipboardWindow clipboardWindow_{app_};
    Lister lister_{app_};
    FileHandling fileHandling_{app_};
    DocumentFiles documents_{files_, app_.Page(), system_.Converter()};
    TextControlWindows textControlWindows_{app_};
    TextWindows textWindows_{app_};
    InsertWindows insertWindows_{app_};
    FontWindows fontWindows_{app_};
    TagPairs tagPairs_{app_};
    WordListWindow wordListWindow_{app_};
    Websites websites_{app_};
    FindWindow findWindow_{app_};
    LoadedNetwork network_;
    LoadedWebEngines webEngines_;
    Pages pages_{app_};
    Text keptFolder_;
    KeptTables keptTables_;
    KeptTexts keptTexts_;
};

} // namespace korvane
