// Reads and writes documents. The floor of a format is one pass over the same bytes that does nothing but
// find its marks. That of DOCX unpacks the main part and goes through its XML.

#include "Contest.h"
#include "ThreadTime.h"
#include "document/docx/Docx.h"
#include "document/html/Html.h"
#include "document/package/Package.h"
#include "document/package/Xml.h"
#include "document/rtf/Rtf.h"

#include <cstdlib>
#include <string>

namespace korvane::bench {

namespace {

using namespace korvane::doc;

constexpr TextView kWords[] = {u"words ", u"of a ",     u"letter, ",   u"with ",
                               u"some ",  u"bold and ", u"caf\u00E9 ", u"in it. "};

/// A document of 20,000 paragraphs of 50 characters or so, each with three runs of different looks.
Document LongLetter() {
    Document document;
    document.paragraphs.clear();
    const Index looks[] = {
        0, document.chars.Add({.bold = true}), document.chars.Add({.halfPoints = 28, .italic = true}),
        document.chars.Add({.font = document.FontNumber(u"Calibri"), .fore = Colour{255}})};
    const Index shapes[] = {
        0, document.paras.Add({.alignment = Alignment::Justified, .left = 360, .after = 120}),
        document.paras.Add({.spacingPercent = 150, .tabs = {{720}, {1440, TabType::Right}}})};
    for (std::size_t i = 0; i < 20'000; ++i) {
        Paragraph& paragraph = document.paragraphs.emplace_back();
        paragraph.format = shapes[i / 7 % std::size(shapes)];
        for (std::size_t run = 0; run < 3; ++run) {
            const std::size_t before = paragraph.text.size();
            for (std::size_t word = 0; word < 3; ++word)
                paragraph.text += kWords[(i * 5 + run * 3 + word) % std::size(kWords)];
            AddRun(paragraph.runs,
                   {static_cast<Index>(paragraph.text.size() - before), looks[(i + run) % std::size(looks)]});
        }
    }
    return document;
}

/// Finds groups and control words. The number of marks keeps the loop from being left out.
std::size_t RtfMarks(std::string_view bytes) {
    std::size_t marks = 0;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const char c = bytes[at];
        if (c == '{' || c == '}') ++marks;
        if (c != '\\') continue;
        ++marks;
        while (at + 1 < bytes.size() && bytes[at + 1] >= 'a' && bytes[at + 1] <= 'z')
            ++at;
    }
    return marks;
}

/// Finds tags.
std::size_t HtmlMarks(std::string_view bytes) {
    std::size_t marks = 0;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (bytes[at] != '<') continue;
        ++marks;
        while (at + 1 < bytes.size() && bytes[at + 1] != '>')
            ++at;
    }
    return marks;
}

/// Unpacks and reads the main part without doing anything with it.
std::size_t DocxMarks(std::string_view bytes) {
    Package package(bytes, {});
    const auto part = package.Part(package.MainPart());
    std::size_t marks = 0;
    XmlHandlers handlers;
    handlers.open = [&marks](std::string_view, const XmlAttributes&) { ++marks; };
    handlers.close = [](std::string_view) {};
    handlers.text = [](std::string_view) {};
    handlers.full = [] { return false; };
    if (part) ReadXml(*part, handlers);
    return marks;
}

template <class Floor, class Work>
void Compare(benchmark::State& state, const Floor& floor, const Work& work) {
    Contest contest(state);
    for ([[maybe_unused]] auto _ : state) {
        const double least = SecondsOf([&] { benchmark::DoNotOptimize(floor()); });
        contest.Round(least, SecondsOf([&] { benchmark::DoNotOptimize(work()); }));
    }
}

void ReadLongRtf(benchmark::State& state) {
    const std::string bytes = WriteRtf(LongLetter());
    Compare(
        state, [&] { return RtfMarks(bytes); }, [&] { return ReadRtf(bytes); });
    state.counters["bytes"] = static_cast<double>(bytes.size());
}

void WriteLongRtf(benchmark::State& state) {
    const Document document = LongLetter();
    const std::string bytes = WriteRtf(document);
    Compare(
        state, [&] { return RtfMarks(bytes); }, [&] { return WriteRtf(document); });
    state.counters["bytes"] = static_cast<double>(bytes.size());
}

void ReadLongHtml(benchmark::State& state) {
    const std::string bytes = WriteHtml(LongLetter());
    Compare(
        state, [&] { return HtmlMarks(bytes); }, [&] { return ReadHtml(bytes); });
    state.counters["bytes"] = static_cast<double>(bytes.size());
}

void WriteLongHtml(benchmark::State& state) {
    const Document document = LongLetter();
    const std::string bytes = WriteHtml(document);
    Compare(
        state, [&] { return HtmlMarks(bytes); }, [&] { return WriteHtml(document); });
    state.counters["bytes"] = static_cast<double>(bytes.size());
}

void ReadLongDocx(benchmark::State& state) {
    const std::string bytes = WriteDocx(LongLetter());
    Compare(
        state, [&] { return DocxMarks(bytes); }, [&] { return ReadDocx(bytes); });
    state.counters["bytes"] = static_cast<double>(bytes.size());
}

BENCHMARK(ReadLongRtf)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK(WriteLongRtf)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK(ReadLongHtml)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK(WriteLongHtml)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK(ReadLongDocx)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);

} // namespace

} // namespace korvane::bench
