// `document_load FILE...` loads files as the text window does, the first one as text. A test traces what it
// asks of the system.

#include "platform/native/NativeFileSystem.h"
#include "text/files/DocumentFiles.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string_view>
#include <utility>

namespace {

int FormatOf(std::string_view name) {
    using namespace korvane;
    static constexpr std::pair<std::string_view, int> kFormats[] = {{".rtf", TextFormat::Rtf},
                                                                    {".html", TextFormat::Html},
                                                                    {".docx", TextFormat::Docx},
                                                                    {".xlsx", TextFormat::Xlsx}};
    for (const auto& [ending, format] : kFormats) {
        if (name.ends_with(ending)) return format;
    }
    return TextFormat::Plain;
}

} // namespace

int main(int argc, char** argv) {
    using namespace korvane;
    // What has times in it makes the system read this first.
    tzset();
    NativeFileSystem files(u"/");
    DocumentFiles documents(files, CodePage::Windows1252(), nullptr);
    for (int i = 1; i < argc; ++i) {
        const auto read = documents.Load(FromUtf8(argv[i]), FormatOf(argv[i]));
        if (!read || read->document.paragraphs.empty()) return EXIT_FAILURE;
        std::printf("%s: %zu pictures\n", argv[i], read->document.images.size());
    }
    return EXIT_SUCCESS;
}
