#include "files/viewing/ConfirmLargeFile.h"

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "context/App.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"

namespace korvane {

bool ConfirmLargeFile(App& app, TextView path) {
    constexpr std::int64_t kLargest = 1'000'000;
    constexpr double kBytesOfKilobyte = 1000;
    const FileSystem& files = app.Files();
    const std::int64_t length = files.Size(path).value_or(0);
    if (length <= kLargest) return true;
    const Text question = u"File name: " + Text(files.Style().NamePart(path)) + u"\t\r\n\r\nFile size:    " +
                          FormatGrouped(static_cast<double>(length) / kBytesOfKilobyte) +
                          u" KB\r\n\r\nView this large file ?\r\n";
    return app.Messages().Show({question, MessageIcon::Question, MessageButtons::YesNo, 2}) == Answer::Yes;
}

} // namespace korvane
