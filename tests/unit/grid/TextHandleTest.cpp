#include "grid/TextHandle.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using Kind = TextHandle::Kind;

TEST(TextHandle, AnEmptyOneIsEmpty) {
    EXPECT_TRUE(TextHandle().IsEmpty());
    EXPECT_EQ(TextHandle().Length(), 0u);
}

TEST(TextHandle, HoldsKindOffsetAndLengthAtTheirLimits) {
    for (const Kind kind : {Kind::Adopted, Kind::Bytes, Kind::Wide, Kind::Large}) {
        const TextHandle handle(kind, TextHandle::kMaxOffset, TextHandle::kMaxLength);
        EXPECT_EQ(handle.GetKind(), kind);
        EXPECT_EQ(handle.Offset(), TextHandle::kMaxOffset);
        EXPECT_EQ(handle.Length(), TextHandle::kMaxLength);
    }
}

TEST(TextHandle, ATextAtTheStartOfTheFileIsNotEmpty) {
    const TextHandle handle(Kind::Adopted, 0, 1);
    EXPECT_FALSE(handle.IsEmpty());
    EXPECT_EQ(handle.Offset(), 0u);
    EXPECT_EQ(handle.Length(), 1u);
}

} // namespace
} // namespace korvane
