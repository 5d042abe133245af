#include "app/Program.h"

#include "app/OwnFiles.h"
#include "context/exchange/StartState.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/FavouriteFolders.h"
#include "context/ports/FilePicker.h"
#include "context/ports/FileViewer.h"
#include "context/ports/PictureFiles.h"
#include "context/ports/SystemFileDialog.h"
#include "context/ports/SystemFontDialog.h"
#include "grid/GridStore.h"
#include "platform/native/NativePath.h"
#include "platform/native/SystemCalls.h"
#include "platform/native/user/StateFolder.h"
#include "platform/native/user/UserCodePage.h"
#include "platform/qt/base/FinishTyping.h"
#include "platform/qt/services/LogOut.h"
#include "platform/qt/services/QtTextOrder.h"
#include "platform/xls/XlsSpreadsheet.h"
#include "shell/main/frmMDIParent.h"

#include <QApplication>
#include <QPixmap>
#include <cstdlib>
#include <utility>

namespace korvane {

namespace {

App::Platform Complete(App::Platform platform, SystemParts& system, const UserLocale& locale,
                       FileTypes& fileTypes, const InstalledFonts& fonts) {
    platform.folders = &system.Folders();
    platform.locale = &locale;
    platform.fileTypes = &fileTypes;
    platform.fonts = &fonts;
    platform.codePage = UserCodePage();
    platform.makeGrid = [page = platform.codePage, order = std::make_shared<QtTextOrder>()] {
        return std::make_unique<GridStore>(page, order);
    };
    platform.makeSpreadsheet = [&system, &files = platform.files,
                                &shell = platform.shell]() -> std::unique_ptr<Spreadsheet> {
        auto application = system.SpreadsheetApplication();
        return application ? std::move(application) : std::make_unique<XlsSpreadsheet>(files, shell);
    };
    return platform;
}

/// Where a window shows its pages; nullptr while it isn't on the screen.
QWidget* PlaceOf(const WebView& view, const QtFormHost& forms) {
    const QWidget* window = forms.WidgetOf(view.Owner());
    return window == nullptr ? nullptr : window->findChild<QWidget*>(QString::fromStdString(view.Name()));
}

} // namespace

Program::MemoryLock::~MemoryLock() {
    system_calls::AllowMemoryDump(true);
}

void Program::MemoryLock::Hold() {
    system_calls::AllowMemoryDump(false);
}

Program::Program(SystemParts& system, NativeFileSystem files, InstanceChannel& channel,
                 MessageBoxes& messages)
    : system_(system),
      files_(std::move(files)),
      backgroundFiles_(OwnFiles()),
      forms_(KorvaneForms()),
      app_(Complete(
          {files_, messages, clipboard_, clock_, screen_, system.Desktop(), channel, forms_, nullptr}, system,
          locale_, fileTypes_, fonts_)),
      webEngines_([this](const WebView& view) { return PlaceOf(view, forms_); },
                  !system_calls::IsAdministrator()),
      keptFolder_(FromNativePath(FindKeptFolder(OwnSurroundings()))),
      keptTables_(app_, background_, keptFolder_),
      keptTexts_(files_, keptFolder_) {
    app_.SetPort<SecretHolder>(&memoryLock_);
    app_.SetPort<PatientDisk>(&patientDisk_);
    app_.SetPort<FilePicker>(&lister_);
    app_.SetPort<FavouriteFolders>(&lister_);
    app_.SetPort<SystemFileDialog>(&systemFileDialog_);
    app_.SetPort<FrontWindow>(&frontWindow_);
    app_.SetPort<SystemFontDialog>(&fontDialog_);
    app_.SetPort<ColourPicker>(&colourPicker_);
    app_.SetPort<PictureFiles>(&pictureFiles_);
    app_.SetPort<FileViewer>(&fileHandling_);
    app_.SetPort<TableKeeper>(&keptTables_);
    app_.SetPort<TextKeeper>(&keptTexts_);
    app_.SetPort<TextFiles>(&documents_);
    app_.SetPort<Network>(&network_);
    app_.SetPort<WebEngines>(&webEngines_);
}

int Program::Run(const Text& path) {
    frmMDIParent main(app_, path);
    main.EnsureLoaded();
    files_.DropAhead();
    if (app_.Exchange<StartState>().SecondInstance == 1) return 0;
    keptTexts_.LookForUnsaved();
    keptTables_.LookForUnsaved();
    main.Show();
    if (const QWidget* window = forms_.WidgetOf(main)) system_.MainWindowShown(window->winId());
    // Most users open a file next.
    forms_.MakeAheadSoon("frmGetFileFromTree");
    forms_.MakeAheadSoon("frm_RTF_HTM");
    QObject whileItRuns;
    CloseAtLogOut(
        main, [&] { CloseUnasked(main); }, whileItRuns);
    const auto end = [&] {
        if (!CloseUnasked(main)) std::_Exit(0);
    };
    system_.WatchEnd(end);
    EndWithSession(end, whileItRuns);
    forms_.RunUntilClosed(main);
    return 0;
}

/// The program ends and nobody can be asked: what a question would be about is kept for the next start. False
/// when the window stays open.
bool Program::CloseUnasked(frmMDIParent& main) {
    FinishTyping();
    if (main.HasChanges()) {
        keptTables_.KeepNow();
        textWindows_.KeepNow();
        return false;
    }
    // A window that waits for an answer can't be taken away from the command that asks.
    if (QApplication::activeModalWidget() == nullptr) return main.Close();
    main.WriteState();
    return false;
}

int Program::Render(const Text& path, const QString& picture) {
    frmMDIParent main(app_, path);
    main.EnsureLoaded();
    main.Show();
    QWidget* window = forms_.WidgetOf(main);
    if (window == nullptr) return 1;
    screen_.ProcessMessages();
    if (window->grab().save(picture)) return 0;
    qWarning("Cannot write %s", qPrintable(picture));
    return 1;
}

} // namespace korvane
