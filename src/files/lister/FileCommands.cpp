#include "files/lister/FileCommands.h"

#include "common/number/Number.h"
#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/StandardMessages.h"
#include "context/exchange/CopyMoveRequest.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/TextFileViewer.h"
#include "dialogs/Questions.h"
#include "dialogs/frmTxtInfo.h"
#include "files/jobs/frmCopyMove.h"
#include "files/lister/OpenShortcut.h"
#include "files/lister/ShownFolder.h"
#include "files/lister/rows/DiskWait.h"
#include "files/lister/rows/FileRows.h"
#include "files/lists/OpenWith.h"
#include "files/names/frmDupFile.h"
#include "files/names/frmRenFile.h"
#include "files/viewing/ViewFile.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/Shell.h"

namespace korvane {

namespace {

constexpr std::int16_t kCopy = 1;
constexpr std::int16_t kMove = 2;

constexpr TextView kRecycleNote =
    u"\r\n\r\nNote: Deleted files can be retrieved from the Windows Recycle Bin as\r\nlong as they stem from "
    u"a fixed drive, i.e. the hard disk of your computer.";

Text DeleteQuestion(const std::vector<Text>& marked) {
    const Text question = marked.size() == 1
                              ? u"Delete the following file ?\r\n\r\n" + marked.front()
                              : u"Delete   >   " + NumberText(marked.size()) + u"   <   files ?";
    return question + Text(kRecycleNote);
}

} // namespace

FileCommands::FileCommands(App& app, ShownFolder& folder, FileRows& rows, DiskWait& wait)
    : app_(app), folder_(folder), rows_(rows), wait_(wait) {}

bool FileCommands::HasFile() {
    if (folder_.IsListed()) return rows_.Current() > 0;
    folder_.List();
    return false;
}

std::vector<Text> FileCommands::MarkedFiles() {
    if (!folder_.IsListed()) {
        folder_.List();
        return {};
    }
    std::vector<Text> marked = rows_.MarkedNames();
    if (marked.empty()) Inform(app_, u"No items checked.");
    return marked;
}

bool FileCommands::HasFileThatAnswers() {
    return HasFile() && LookAt({folder_.PathOf(rows_.CurrentName())});
}

std::optional<std::vector<FileCommands::Seen>> FileCommands::LookAt(const std::vector<Text>& paths) {
    return AnswerTo<std::vector<Seen>>(
        [this](const DiskQuestion& question) { return wait_.AskForCommand(question); },
        [paths](const FileSystem& files, const StillWaits&) {
            std::vector<Seen> seen;
            seen.reserve(paths.size());
            for (const Text& path : paths)
                seen.push_back({files.FileExists(path), files.IsLink(path), files.Size(path).has_value()});
            return seen;
        });
}

bool FileCommands::PutAtHand() {
    if (!HasFileThatAnswers() || !folder_.Enter()) return false;
    FileOperation& file = app_.Exchange<FileOperation>();
    file.FileOpFolder = folder_.Path();
    file.FileOpName = rows_.CurrentName();
    return true;
}

// The current file.

void FileCommands::View(Viewing viewing) {
    if (!HasFile()) return;
    const KeepCurrentDir keep(app_);
    Text path = folder_.PathOf(rows_.CurrentName());
    const auto seen = LookAt({path});
    if (!seen) return;
    if (!seen->front().isFile) return ShowCannotLocate(app_, path);
    if (OpenShortcut(app_, path)) return;
    // Whatever opens a pipe or a socket waits for somebody to write into it.
    if (!seen->front().hasSize) return ShowCannotLoad(app_, path);
    if (viewing == Viewing::ByType) {
        ViewFile(app_, path);
    } else if (auto* texts = app_.Port<TextFileViewer>()) {
        texts->View(path);
    }
}

void FileCommands::ViewWith() {
    if (HasFileThatAnswers()) OpenWithUserProgram(app_, folder_.PathOf(rows_.CurrentName()));
}

void FileCommands::ShowInfo() {
    if (!HasFileThatAnswers()) return;
    FileFacts facts = FactsOfFile(app_, folder_.PathOf(rows_.CurrentName()));
    facts.folder = folder_.Path();
    frmTxtInfo(app_, facts).ShowModal();
}

bool FileCommands::Rename() {
    if (!PutAtHand()) return false;
    frmRenFile window(app_);
    if (ShowForResult(app_, window) != 1) return false;
    folder_.ListAgain();
    rows_.GoToName(app_.Exchange<FileOperation>().FileNewName);
    return true;
}

void FileCommands::Duplicate() {
    if (!PutAtHand()) return;
    frmDupFile window(app_);
    if (ShowForResult(app_, window) == 1) ListAgainAtRow();
}

// The marked files.

void FileCommands::Copy() {
    ShowCopyMove(kCopy);
}

void FileCommands::Move() {
    ShowCopyMove(kMove);
}

void FileCommands::ShowCopyMove(std::int16_t kind) {
    CopyMoveRequest& request = app_.Exchange<CopyMoveRequest>();
    request.lstMarkedFiles = MarkedFiles();
    if (request.lstMarkedFiles.empty()) return;
    if (!LookAt({folder_.PathOf(request.lstMarkedFiles.front())}) || !folder_.Enter()) return;
    request.CopyMoveKind = kind;
    request.CopySourceFolder = app_.Files().CurrentDir();
    {
        // Whoever opened the lister reads the count as that of the files to load.
        const ScopedValue count(app_.Exchange<ListerRequest>().ChosenFileCount,
                                static_cast<std::int16_t>(request.lstMarkedFiles.size()));
        frmCopyMove(app_).ShowModal();
    }
    // A target from the favourites is left there.
    app_.Exchange<ListerRequest>().ListerFolder = folder_.Path();
    ListAgainAtRow();
}

void FileCommands::Delete() {
    std::vector<Text>& marked = app_.Exchange<CopyMoveRequest>().lstMarkedFiles;
    marked = MarkedFiles();
    if (marked.empty()) return;
    const Message question{DeleteQuestion(marked), MessageIcon::Exclamation, MessageButtons::YesNo, 2};
    if (app_.Messages().Show(question) != Answer::Yes) return rows_.TakeFocus();
    if (Recycle(marked)) ListAgainAtRow();
}

bool FileCommands::Recycle(const std::vector<Text>& names) {
    std::vector<Text> paths;
    paths.reserve(names.size());
    for (const Text& name : names)
        paths.push_back(folder_.PathOf(name));
    const auto seen = LookAt(paths);
    for (std::size_t index = 0; seen && index < paths.size(); ++index) {
        const Seen& file = (*seen)[index];
        // A link that leads nowhere is there too.
        if (file.isFile || file.isLink) app_.Shell().Recycle(paths[index], RecycleTalk::Silent);
    }
    return seen.has_value();
}

void FileCommands::ListAgainAtRow() {
    const int row = rows_.Current();
    folder_.ListAgain();
    rows_.GoToRow(row);
}

} // namespace korvane
