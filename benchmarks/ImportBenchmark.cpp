#include "BenchProgram.h"
#include "Contest.h"
#include "context/ports/ClipboardView.h"
#include "table/ImportCommand.h"

#include <cstdlib>
#include <memory>
#include <string_view>

namespace korvane::bench {

namespace {

constexpr int kLines = 30'000;
constexpr int kCells = 12;

/// A text of 30,000 lines with 12 cells of 8 to 23 characters each, as another program puts it into the
/// clipboard.
const Text& TabbedText() {
    static const Text text = [] {
        constexpr TextView kWords = u"Marlowe Street 14, second floor";
        Text made;
        for (int line = 0; line < kLines; ++line) {
            for (int cell = 1; cell <= kCells; ++cell) {
                made += kWords.substr(0, static_cast<std::size_t>(8 + (line * 7 + cell * 5) % 16));
                made += cell < kCells ? u'\t' : u'\n';
            }
        }
        return made;
    }();
    return text;
}

/// A user who always retrieves the text in the clipboard.
class Retrieving final : public ClipboardView {
public:
    void Show() override {}
    bool Choose() override { return true; }
};

/// The texts of cells as bytes, and where each of them ends.
struct PlainCells {
    std::string bytes;
    std::vector<std::size_t> ends;
};

PlainCells CellsOf(TextView text) {
    PlainCells cells;
    for (const char16_t character : text) {
        if (character == u'\t' || character == u'\n') {
            cells.ends.push_back(cells.bytes.size());
        } else {
            cells.bytes.push_back(static_cast<char>(character));
        }
    }
    return cells;
}

/// The floor copies the clipboard's text, as the clipboard does when it is read, and stores its cells as
/// bytes.
void Import(benchmark::State& state) {
    Retrieving view;
    Contest contest(state);
    for ([[maybe_unused]] auto _ : state) {
        const auto program = std::make_unique<BenchProgram>();
        program->clipboard.SetText(TabbedText());
        program->app.SetPort<ClipboardView>(&view);
        program->messages.QueueAnswer(Answer::Yes);
        const double floor = SecondsOf([&program] {
            const Text text = program->clipboard.GetText();
            benchmark::DoNotOptimize(CellsOf(text));
        });
        contest.Round(floor, SecondsOf([&program] { mnuImport_Clip_Clack(program->tab); }));
        if (program->grid.RowCount() != Row{kLines} || program->grid.ColCount() != Col{kCells}) std::abort();
    }
}

BENCHMARK(Import)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);

} // namespace

} // namespace korvane::bench
