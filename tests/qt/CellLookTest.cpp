#include "platform/qt/grid/CellLook.h"

#include "QtSupport.h"
#include "platform/qt/base/Convert.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace korvane {
namespace {

constexpr double kReadable = 3.0;
constexpr Row kRow{1};
constexpr Col kCol{1};

QPalette Dark() {
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(30, 30, 34));
    palette.setColor(QPalette::Text, QColor(230, 230, 230));
    return palette;
}

class CellLookTest : public testing::Test {
protected:
    std::unique_ptr<Grid> store = test::MakeStore(1, 1);
};

TEST_F(CellLookTest, AnUncolouredCellTakesThePalette) {
    const CellColours colours = ColoursOf(*store, kRow, kCol, Dark());
    EXPECT_EQ(colours.back, QColor(30, 30, 34));
    EXPECT_EQ(colours.text, QColor(230, 230, 230));
}

TEST_F(CellLookTest, TheTableIsBehindItsCells) {
    store->SetGridBackColor(Colour{0xC0FFFF});
    store->SetGridForeColor(Colour{0x800000});
    const CellColours colours = ColoursOf(*store, kRow, kCol, Dark());
    EXPECT_EQ(colours.back, QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(colours.text, QColor(0, 0, 128));
}

TEST_F(CellLookTest, AWhiteTableIsDarkInTheDarkAndItsTextReadable) {
    store->SetGridBackColor(Colour{0xFFFFFF});
    store->SetGridForeColor(Colour{0xC00000});
    const CellColours dark = ColoursOf(*store, kRow, kCol, Dark());
    EXPECT_EQ(dark.back, QColor(30, 30, 34));
    EXPECT_GE(Contrast(dark.text, dark.back), kReadable);
    EXPECT_EQ(TableBack(*store, Dark()), dark.back);
    const CellColours light = ColoursOf(*store, kRow, kCol, QPalette());
    EXPECT_EQ(light.back, QColor(Qt::white));
    EXPECT_EQ(light.text, QColor(0, 0, 0xC0));
}

TEST_F(CellLookTest, ALightCellWithoutATextColourStaysReadableInTheDark) {
    store->SetCellBackColor(kRow, kCol, Colour{0xC0FFFF});
    const CellColours colours = ColoursOf(*store, kRow, kCol, Dark());
    EXPECT_EQ(colours.back, ToQColor(Colour{0xC0FFFF}));
    EXPECT_GE(Contrast(colours.text, colours.back), kReadable);
}

TEST_F(CellLookTest, ADarkTextWithoutABackgroundStaysReadableInTheDark) {
    store->SetCellForeColor(kRow, kCol, Colour{0x800000});
    const CellColours colours = ColoursOf(*store, kRow, kCol, Dark());
    EXPECT_GE(Contrast(colours.text, colours.back), kReadable);
    EXPECT_GT(colours.text.blue(), colours.text.red());
}

TEST_F(CellLookTest, ARowOfTheDefaultWhiteIsDrawnAsTheTableInTheDark) {
    store->SetGridBackColor(Colour{0xFFFFFF});
    store->SetCellBackColor(kRow, kCol, Colour{0xFFFFFF});
    store->SetCellForeColor(kRow, kCol, Colour{0});
    const CellColours dark = ColoursOf(*store, kRow, kCol, Dark());
    EXPECT_EQ(dark.back, QColor(30, 30, 34));
    EXPECT_GE(Contrast(dark.text, dark.back), 4.5);
    const CellColours light = ColoursOf(*store, kRow, kCol, QPalette());
    EXPECT_EQ(light.back, QColor(Qt::white));
    EXPECT_EQ(light.text, QColor(Qt::black));
    store->SetGridBackColor(Colour{0xC0FFFF});
    EXPECT_EQ(ColoursOf(*store, kRow, kCol, Dark()).back, ToQColor(Colour{0xC0FFFF}));
}

TEST_F(CellLookTest, TwoColoursOfTheDataStandAsTheyAre) {
    store->SetCellBackColor(kRow, kCol, Colour{0x101010});
    store->SetCellForeColor(kRow, kCol, Colour{0x202020});
    const CellColours colours = ColoursOf(*store, kRow, kCol, QPalette());
    EXPECT_EQ(colours.back, QColor(0x10, 0x10, 0x10));
    EXPECT_EQ(colours.text, QColor(0x20, 0x20, 0x20));
}

struct NamedColours {
    const char* name;
    CellColours colours;
};

std::vector<NamedColours> Looks() {
    return {
        {"light", {Qt::white, QColor(0, 0, 0xC0)}},
        {"dark", {QColor(27, 29, 33), QColor(228, 231, 235)}},
        {"yellow", {QColor(255, 255, 128), Qt::black}},
        {"key's yellow", {QColor(255, 255, 0), Qt::black}},
        {"red", {Qt::red, Qt::white}},
        {"dark blue", {Qt::blue, Qt::white}},
        {"light blue", {QColor(192, 255, 255), QColor(0, 0, 0xC0)}},
        {"green", {QColor(192, 255, 192), QColor(0, 0, 0xC0)}},
        {"grey", {QColor(192, 192, 192), Qt::white}},
        {"orange", {QColor(255, 192, 128), QColor(0, 0, 0xC0)}},
    };
}

TEST(MarkBackTest, IsSeenAndLeavesTheTextReadableOnEveryLookOfARow) {
    for (const auto& [name, colours] : Looks()) {
        for (const Mark mark : {Mark::Soft, Mark::Strong}) {
            const QColor back = MarkBack(colours, mark);
            const int difference = std::abs(back.red() - colours.back.red()) +
                                   std::abs(back.green() - colours.back.green()) +
                                   std::abs(back.blue() - colours.back.blue());
            EXPECT_GE(difference, 60) << name;
            const double before = Contrast(colours.text, colours.back);
            EXPECT_GE(Contrast(colours.text, back), std::min(before, 4.5)) << name;
        }
    }
}

TEST(MarkBackTest, ItsLettersCanBeReadOnEveryLookOfARow) {
    for (const auto& [name, colours] : Looks()) {
        for (const Mark mark : {Mark::Soft, Mark::Strong}) {
            const QColor back = MarkBack(colours, mark);
            EXPECT_GE(Contrast(MarkText(colours, back), back), 4.5) << name;
        }
    }
    const CellColours faint{QColor(40, 40, 40), QColor(90, 90, 90)};
    const QColor back = MarkBack(faint, Mark::Soft);
    EXPECT_GE(Contrast(MarkText(faint, back), back), 4.5);
}

TEST(MarkBackTest, StandsOutMoreInTheCurrentCell) {
    const CellColours colours{Qt::white, Qt::black};
    const QColor soft = MarkBack(colours, Mark::Soft);
    const QColor strong = MarkBack(colours, Mark::Strong);
    EXPECT_LT(strong.blue(), soft.blue());
}

TEST(MarkBackTest, HasAnOutlineThatCanBeSeenOnEveryLookOfARow) {
    for (const auto& [name, colours] : Looks()) {
        for (const Mark mark : {Mark::Soft, Mark::Strong})
            EXPECT_GE(Contrast(MarkEdge(colours, MarkBack(colours, mark)), colours.back), 3.0) << name;
    }
}

TEST(FrameTest, OneOfItsTwoLinesCanBeSeenOnAnyColour) {
    for (const QColor accent :
         {QColor(48, 140, 198), QColor(53, 117, 189), QColor(Qt::yellow), QColor(Qt::black)}) {
        const FrameColours frame = FrameOf(accent);
        constexpr int kStep = 17;
        for (int red = 0; red < 256; red += kStep) {
            for (int green = 0; green < 256; green += kStep) {
                for (int blue = 0; blue < 256; blue += kStep) {
                    const QColor back(red, green, blue);
                    const double best = std::max(Contrast(frame.dark, back), Contrast(frame.light, back));
                    ASSERT_GE(best, 3.0) << back.name().toStdString();
                }
            }
        }
    }
}

TEST(CheckColoursTest, ABoxAndItsTickCanBeSeenOnEveryLookOfARow) {
    for (const auto& [name, colours] : Looks()) {
        const CheckColours box = CheckColoursOn(colours.back);
        EXPECT_GE(Contrast(box.edge, colours.back), 3.0) << name;
        EXPECT_GE(Contrast(box.tick, box.fill), 4.5) << name;
    }
}

} // namespace
} // namespace korvane
