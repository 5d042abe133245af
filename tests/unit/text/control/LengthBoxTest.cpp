#include "text/control/LengthBox.h"

#include "controls/text/TextControl.h"
#include "unit/text/control/ControlStage.h"

namespace korvane {
namespace {

TEST(LengthBoxTest, LengthsAreShownInTheUnitOfTheRuler) {
    EXPECT_EQ(LengthText(1440, UnitOf(TextControl::kInches)), u"1 in");
    EXPECT_EQ(LengthText(720, LengthUnit::Inches), u"0.5 in");
    EXPECT_EQ(LengthText(567, UnitOf(TextControl::kMillimetres)), u"1 cm");
    EXPECT_EQ(LengthText(-284, LengthUnit::Centimetres), u"-0.5 cm");
    EXPECT_EQ(LengthText(15, LengthUnit::Points), u"0.75 pt");
}

TEST(LengthBoxTest, LengthsAreReadInAnyUnit) {
    EXPECT_EQ(LengthIn(u"2", LengthUnit::Inches), 2880);
    EXPECT_EQ(LengthIn(u"1 cm", LengthUnit::Inches), 567);
    EXPECT_EQ(LengthIn(u"1,5cm", LengthUnit::Inches), 850);
    EXPECT_EQ(LengthIn(u"10 MM", LengthUnit::Inches), 567);
    EXPECT_EQ(LengthIn(u"1\"", LengthUnit::Centimetres), 1440);
    EXPECT_EQ(LengthIn(u" -12 pt", LengthUnit::Centimetres), -240);
    EXPECT_EQ(LengthIn(u"99999999 in", LengthUnit::Inches), 100'000);
}

TEST(LengthBoxTest, ATextWithoutANumberIsNoLength) {
    EXPECT_EQ(LengthIn(u"", LengthUnit::Inches), std::nullopt);
    EXPECT_EQ(LengthIn(u"cm", LengthUnit::Inches), std::nullopt);
}

class LengthFieldTest : public ControlStage {
protected:
    LengthBox box{form, "box"};
};

TEST_F(LengthFieldTest, ALengthThatNobodyTouchedKeepsItsExactValue) {
    box.ShowLength(1000, LengthUnit::Centimetres);
    EXPECT_EQ(box.Text.Get(), u"1.76 cm");
    EXPECT_EQ(box.NewLength(), std::nullopt);
    EXPECT_EQ(box.Length(), 1000);
    box.Text = u"2";
    EXPECT_EQ(box.NewLength(), 1134);
    EXPECT_EQ(box.Length(), 1134);
    box.Text = u"";
    EXPECT_EQ(box.NewLength(), std::nullopt);
}

} // namespace
} // namespace korvane
