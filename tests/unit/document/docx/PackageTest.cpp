#include "document/package/Package.h"

#include "document/package/Xml.h"

#include <gtest/gtest.h>

#include <new>

namespace korvane::doc {
namespace {

TEST(Package, PartsComeBack) {
    PackageWriter writer;
    writer.Add("a/b.txt", "bytes");
    writer.Add("empty", "");
    const std::string bytes = writer.Write();
    EXPECT_EQ(bytes, writer.Write());
    Package package(bytes, {});
    ASSERT_TRUE(package.IsOpen());
    EXPECT_EQ(package.Part("a/b.txt"), "bytes");
    EXPECT_EQ(package.Part("empty"), "");
    EXPECT_EQ(package.Part("none"), std::nullopt);
}

NextPiece Numbers(int last) {
    return [last, number = 0, piece = std::string()]() mutable -> std::string_view {
        piece = number < last ? std::to_string(number++) + '\n' : "";
        return piece;
    };
}

TEST(Package, APartIsMadeWhileItIsPacked) {
    PackageWriter writer;
    writer.AddMade("numbers", 588'890, [] { return Numbers(100'000); });
    const PackageParts parts = writer.Parts();
    EXPECT_EQ(parts.at(0).bytes.size(), 588'890u);
    const std::string packed = writer.Write();
    EXPECT_LT(packed.size(), 300'000u);
    EXPECT_EQ(packed, writer.Write()) << "the part is begun again";
    EXPECT_EQ(Package(packed, {}).Part("numbers"), parts.at(0).bytes);
}

TEST(Package, WhatGoesWrongInAPartIsToldAfterwards) {
    PackageWriter writer;
    writer.AddMade("bad", 5,
                   []() -> NextPiece { return []() -> std::string_view { throw std::bad_alloc(); }; });
    bool given = false;
    EXPECT_THROW(writer.Write([&given](std::string_view) { given = true; }), std::bad_alloc);
    EXPECT_FALSE(given);
}

TEST(Package, TwoPartsOfANameAreNoPackage) {
    PackageWriter writer;
    writer.Add("a", "1");
    writer.Add("a", "2");
    EXPECT_EQ(writer.Write(), "");
}

TEST(Package, PartsNeedntBePacked) {
    PackageWriter writer;
    writer.Add("a/b.txt", "bytes");
    const PackageParts parts = writer.Parts();
    Package package(parts, {});
    EXPECT_TRUE(package.IsOpen());
    EXPECT_EQ(package.Part("a/b.txt"), "bytes");
    EXPECT_EQ(package.Part("none"), std::nullopt);
}

TEST(Package, TargetsAreRelativeToTheirPart) {
    PackageWriter writer;
    writer.Add("word/_rels/document.xml.rels",
               "<R xmlns=\"x\"><Relationship Id=\"a\" Type=\"t/image\" Target=\"../media/./x.png\"/>"
               "<Relationship Id=\"b\" Type=\"t/image\" Target=\"/x.png\"/>"
               "<Relationship Id=\"c\" Type=\"t/hyperlink\" Target=\"http://a.b/../c\" "
               "TargetMode=\"External\"/></R>");
    const std::string bytes = writer.Write();
    const std::vector<Package::Relation> relations = Package(bytes, {}).Relations("word/document.xml");
    ASSERT_EQ(relations.size(), 3u);
    EXPECT_EQ(relations[0].target, "media/x.png");
    EXPECT_EQ(relations[0].type, "image");
    EXPECT_EQ(relations[1].target, "x.png");
    EXPECT_EQ(relations[2].target, "http://a.b/../c");
    EXPECT_TRUE(relations[2].external);
}

TEST(Package, OtherBytesAreNoPackage) {
    EXPECT_FALSE(Package("no archive", {}).IsOpen());
    EXPECT_EQ(Package("no archive", {}).Part("x"), std::nullopt);
    Limits limits;
    limits.bytes = 3;
    EXPECT_TRUE(Package("1234", limits).OverLimit());
}

TEST(Xml, SpecialCharactersAreReferences) {
    std::string out;
    PutXml(out, u"a<b>&\"ż\u0001\uFFFF\xD83D\xDE00");
    EXPECT_EQ(out, "a&lt;b&gt;&amp;&quot;ż😀");
}

} // namespace
} // namespace korvane::doc
