// Turns 10,000 tags in a text of a megabyte into formatting.

#include "ProceedingUser.h"
#include "ThreadTime.h"
#include "context/App.h"
#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "grid/Grid.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryScreen.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"
#include "text/markup/MarkupConversion.h"
#include "text/markup/MarkupTags.h"

#include <benchmark/benchmark.h>

namespace korvane::bench {

namespace {

constexpr std::size_t kPairs = 5'000;
constexpr int kPlainPerPair = 190;

/// The pairs go through all tags.
Text TaggedText() {
    Text text;
    for (std::size_t pair = 0; pair < kPairs; ++pair) {
        const MarkupTag& tag = MarkupTags()[pair % MarkupTags().size()];
        text.append(kPlainPerPair, u'x');
        text += Text(tag.opening) + u"word" + Text(tag.closing) + Text(kCrLf);
    }
    return text;
}

class Stage {
public:
    Stage() { control.SetAll(TaggedText()); }

    /// Whether no tag is left.
    bool Done() const { return control.All().find(u'<') == Text::npos; }

    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Posix, clock};
    ScriptedMessageBoxes messages;
    MemoryClipboard clipboard;
    MemoryScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    ProceedingUser user;
    App app{{files, messages, clipboard, clock, screen, shell, instance, user, [] { return nullptr; }}};
    Form form{user, "form", u""};
    TextControl control{form, "control"};
};

template <class Convert>
void Measure(benchmark::State& state, const Convert& convert) {
    for ([[maybe_unused]] auto _ : state) {
        Stage stage;
        state.SetIterationTime(SecondsOf([&] { convert(stage); }));
        if (!stage.Done()) state.SkipWithError("tags are left");
    }
}

void ConvertTagsDirect(benchmark::State& state) {
    Measure(state, [](Stage& stage) {
        stage.messages.QueueAnswer(Answer::Yes);
        stage.control.SetSelection(0, -1);
        ConvertMarkupDirect(stage.app, stage.control);
    });
}

void ConvertTagsByTag(benchmark::State& state) {
    Measure(state,
            [](Stage& stage) { ConvertMarkupByTag(stage.app, stage.control, false, 0, MarkupMode::Silent); });
}

BENCHMARK(ConvertTagsDirect)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(ConvertTagsByTag)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

} // namespace korvane::bench
