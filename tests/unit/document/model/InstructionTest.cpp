#include "document/model/Instruction.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

Text AddressOf(TextView instruction) {
    const std::optional<Field> field = ReadInstruction(instruction);
    return field ? field->typeData : Text(u"(none)");
}

TEST(Instruction, ALinksAddressIsInQuotesOrNot) {
    EXPECT_EQ(AddressOf(u" HYPERLINK \"http://a.b/c d\" "), u"http://a.b/c d");
    EXPECT_EQ(AddressOf(u"hyperlink http://a.b"), u"http://a.b");
}

TEST(Instruction, BackslashesInAPathMayBeSingleOrDouble) {
    EXPECT_EQ(AddressOf(u"HYPERLINK \"C:\\\\a\\\\b.rtf\""), u"C:\\a\\b.rtf");
    EXPECT_EQ(AddressOf(u"HYPERLINK \"C:\\a\\b.rtf\""), u"C:\\a\\b.rtf");
}

TEST(Instruction, APlaceJoinsTheAddress) {
    EXPECT_EQ(AddressOf(u"HYPERLINK \"x.htm\" \\l \"top\""), u"x.htm#top");
    EXPECT_EQ(AddressOf(u"HYPERLINK \\l \"top\""), u"#top");
}

TEST(Instruction, OtherSwitchesAreSkipped) {
    EXPECT_EQ(AddressOf(u"HYPERLINK \"x\" \\o \"tip\" \\t \"_blank\" \\n"), u"x");
}

TEST(Instruction, OtherKindsAreNoFields) {
    EXPECT_EQ(AddressOf(u"PAGE"), u"(none)");
    EXPECT_EQ(AddressOf(u"INCLUDEPICTURE \"http://a.b/c.png\""), u"(none)");
    EXPECT_EQ(AddressOf(u"ADDIN OTHER 1 x y"), u"(none)");
    EXPECT_EQ(AddressOf(u"ADDIN KORVANE.NOTE 2 x y"), u"(none)");
    EXPECT_EQ(AddressOf(u""), u"(none)");
}

TEST(Instruction, EveryFieldComesBack) {
    for (const Field& field : {Field{FieldKind::Hyperlink, u"C:\\a \"b\".rtf", {}},
                               Field{FieldKind::Hyperlink, u"#x", {}}, Field{FieldKind::Hyperlink, {}, {}},
                               Field{FieldKind::Note, u"text", u"note\r\nż"}, Field{FieldKind::Note, {}, {}}})
        EXPECT_EQ(ReadInstruction(WriteInstruction(field)), field) << ToUtf8(WriteInstruction(field));
}

} // namespace
} // namespace korvane::doc
