// Edits random documents at random places and checks what must hold for every edit.

#include "document/model/Edit.h"
#include "support/RandomDocument.h"

#include <gtest/gtest.h>

#include <random>

namespace korvane::doc {
namespace {

class RandomEdit : public testing::TestWithParam<unsigned> {
protected:
    Range AnyRange(const Document& document) {
        Places places(document);
        const Pos end = PlainText(document).size() + 1;
        const Place a = places.At(random_() % end);
        const Place b = places.At(random_() % end);
        return {std::min(a, b), std::max(a, b)};
    }

    static bool InOneParagraphOutside(const Document& document, const Range& range) {
        for (std::size_t i = range.from.paragraph; i <= range.to.paragraph; ++i) {
            if (document.paragraphs[i].cell.table != 0) return false;
        }
        return true;
    }

    std::mt19937 random_{GetParam()};
};

TEST_P(RandomEdit, EveryResultIsSoundAndCanBeTakenBack) {
    for (unsigned i = 0; i < 40; ++i) {
        Document document = RandomDocument(GetParam() * 100 + i);
        const Document piece = RandomDocument(GetParam() * 100 + i + 50, {.page = false});
        const Document before = document;
        Replacement made = ReplacePatch(document, AnyRange(document), piece);
        const Patch back = Apply(document, std::move(made.patch));
        ASSERT_TRUE(IsSound(document)) << i;
        ASSERT_LT(made.end.paragraph, document.paragraphs.size());
        ASSERT_LE(made.end.offset, document.paragraphs[made.end.paragraph].text.size());
        Apply(document, back);
        ASSERT_EQ(FirstDifference(document, before), "") << i;
    }
}

TEST_P(RandomEdit, TheTextChangesAsATextDoes) {
    for (unsigned i = 0; i < 40; ++i) {
        Document document = RandomDocument(GetParam() * 100 + i);
        const Range range = AnyRange(document);
        if (!InOneParagraphOutside(document, range)) continue;
        Places places(document);
        Text expected = PlainText(document);
        expected.replace(places.Of(range.from), places.Of(range.to) - places.Of(range.from), u"x\r\ny");
        Replacement made = ReplacePatch(document, range, FromPlainText(u"x\r\ny"));
        Apply(document, std::move(made.patch));
        ASSERT_EQ(ToUtf8(PlainText(document)), ToUtf8(expected)) << i;
        Places after(document);
        ASSERT_EQ(PlainText(document).substr(0, after.Of(made.end)), expected.substr(0, after.Of(made.end)));
        ASSERT_EQ(expected[after.Of(made.end) - 1], u'y');
    }
}

TEST_P(RandomEdit, ASliceIsSoundAndPutBackChangesNothing) {
    for (unsigned i = 0; i < 40; ++i) {
        Document document = RandomDocument(GetParam() * 100 + i);
        const Range range = AnyRange(document);
        const Document slice = Slice(document, range);
        ASSERT_TRUE(IsSound(slice)) << i;
        if (!InOneParagraphOutside(document, range)) continue;
        const Document before = document;
        Apply(document, ReplacePatch(document, range, slice).patch);
        ASSERT_EQ(FirstDifference(document, before), "") << i;
    }
}

TEST_P(RandomEdit, TheSliceOfAllIsTheDocument) {
    for (unsigned i = 0; i < 40; ++i) {
        const Document document = RandomDocument(GetParam() * 100 + i);
        const Place end{document.paragraphs.size() - 1, document.paragraphs.back().text.size()};
        const Document slice = Slice(document, {{0, 0}, end});
        ASSERT_EQ(FirstDifference(slice, document), "") << i;
        // An empty piece is a deletion, which leaves the look as it was.
        if (PlainText(document).empty()) continue;
        Document target = FromPlainText(u"gone\r\nwith it");
        Apply(target, ReplacePatch(target, {{0, 0}, {1, 7}}, slice).patch);
        target.page = document.page;
        target.defaultTab = document.defaultTab;
        target.fields = document.fields;
        ASSERT_EQ(FirstDifference(target, document), "") << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdit, testing::Range(1u, 9u));

} // namespace
} // namespace korvane::doc
