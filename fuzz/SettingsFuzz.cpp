// Takes any bytes as a settings file. They must be read without a message, and reading them after writing
// them must give the same settings.

#include "StateStage.h"
#include "common/settings/Settings.h"
#include "context/exchange/StateFiles.h"
#include "shell/settings/SettingsFile.h"

#include <array>
#include <cstdint>
#include <string>

namespace korvane {
namespace {

struct Pair {
    std::int32_t Settings::*first;
    std::int32_t Settings::*second;
};
/// The writer exchanges the members of these pairs.
constexpr std::array kExchanged{
    Pair{&Settings::WordListWidth, &Settings::WordListHeight},
    Pair{&Settings::SymbolsTop, &Settings::SymbolsLeft},
    Pair{&Settings::SymbolsWidth, &Settings::SymbolsHeight},
};

/// These texts are read as numbers. While no line has set one, it is written as it is.
constexpr std::array kNumberTexts{&Settings::FileDialogFilter, &Settings::PageSizeName,
                                  &Settings::WallpaperNumber};

std::string Write(StateStage& stage) {
    WriteSettings(stage.app);
    return stage.files.Contents(stage.app.Exchange<StateFiles>().IniFilePath).value_or("");
}

void Read(std::string_view bytes, StateStage& stage) {
    stage.files.AddFile(stage.app.Exchange<StateFiles>().IniFilePath, bytes);
    ReadSettings(stage.app);
}

void Check(std::string_view bytes) {
    StateStage stage;
    Read(bytes, stage);
    for (const auto member : kNumberTexts)
        if ((stage.app.Settings.*member).empty()) stage.app.Settings.*member = u"0";
    const std::string first = Write(stage);

    StateStage again;
    Read(first, again);
    for (const Pair& pair : kExchanged)
        std::swap(again.app.Settings.*pair.first, again.app.Settings.*pair.second);
    Require(Write(again) == first, "what is written comes back but for the exchanged pairs");
}

} // namespace
} // namespace korvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::Check({reinterpret_cast<const char*>(data), size});
    return 0;
}
