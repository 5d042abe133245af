#include "platform/qt/look/DrawSvg.h"

#include "SourceTree.h"
#include "platform/qt/look/SvgPath.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <algorithm>
#include <cstdlib>

namespace korvane {
namespace {

QByteArray In24(const char* shapes) {
    return QByteArray(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">)") + shapes + "</svg>";
}

QImage Drawn(const QByteArray& svg, int width = 24) {
    return DrawSvg(svg, {width, width});
}

/// The largest difference of a colour in the two pictures.
int Difference(const QImage& one, const QImage& other) {
    EXPECT_EQ(one.sizeInBytes(), other.sizeInBytes());
    int largest = 0;
    for (qsizetype i = 0; i < std::min(one.sizeInBytes(), other.sizeInBytes()); ++i)
        largest = std::max(largest, std::abs(one.constBits()[i] - other.constBits()[i]));
    return largest;
}

/// The same on average.
double MeanDifference(const QImage& one, const QImage& other) {
    EXPECT_EQ(one.sizeInBytes(), other.sizeInBytes());
    double sum = 0;
    const qsizetype bytes = std::min(one.sizeInBytes(), other.sizeInBytes());
    for (qsizetype i = 0; i < bytes; ++i)
        sum += std::abs(one.constBits()[i] - other.constBits()[i]);
    return sum / static_cast<double>(bytes);
}

QByteArray Bytes(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QImage DrawnByPlugin(QByteArray svg, int width) {
    QBuffer buffer(&svg);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize({width, width});
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

TEST(DrawSvgTest, TheProgramsIconsLookAsQtsOwnReaderDrawsThem) {
    if (!QImageReader::supportedImageFormats().contains("svg"))
        GTEST_SKIP() << "Qt has no reader of SVG here to compare with";
    const QDir folder(QStringLiteral(KORVANE_SOURCE_DIR) + "/src/platform/qt/look/icons");
    const QStringList names = folder.entryList({"*.svg"});
    EXPECT_GT(names.size(), 100);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray svg = file.readAll();
        for (const int width : {16, 24, 48})
            EXPECT_LE(Difference(Drawn(svg, width), DrawnByPlugin(svg, width)), 64) << name.toStdString();
    }
}

TEST(ProgramIconTest, TheReadyPicturesAreThatOfTheDrawing) {
    const QString path = QStringLiteral(KORVANE_SOURCE_DIR) + "/packaging/korvane";
    const bool canCompare = QImageReader::supportedImageFormats().contains("svg");
    for (const int width : {16, 32, 48, 64, 128}) {
        const QByteArray pixels = Bytes(path + QStringLiteral("-%1.bgra").arg(width));
        ASSERT_EQ(pixels.size(), width * width * 4);
        if (!canCompare) continue;
        const QImage ready(reinterpret_cast<const uchar*>(pixels.constData()), width, width,
                           QImage::Format_ARGB32);
        const QImage drawn = DrawnByPlugin(Bytes(path + ".svg"), width);
        EXPECT_LT(MeanDifference(ready.convertToFormat(drawn.format()), drawn), 6) << width;
    }
}

TEST(DrawSvgTest, AGroupHandsItsColoursToTheShapesInItAndNotToThoseAfterIt) {
    const QImage drawn = Drawn(In24(R"(<g fill="#ff0000"><rect x="0" y="0" width="12" height="12"/></g>
        <rect x="12" y="0" width="12" height="12"/><rect x="0" y="12" width="12" height="12" fill="none"/>)"));
    EXPECT_EQ(drawn.pixelColor(5, 5), QColor(255, 0, 0));
    EXPECT_EQ(drawn.pixelColor(18, 5), QColor(0, 0, 0));
    EXPECT_EQ(drawn.pixelColor(5, 18).alpha(), 0);
}

TEST(DrawSvgTest, ThePictureFillsTheSize) {
    const QByteArray whole = In24(R"(<rect x="0" y="0" width="24" height="24" fill="#0000ff"/>)");
    EXPECT_EQ(Drawn(whole, 7).pixelColor(6, 6), QColor(0, 0, 255));
}

TEST(DrawSvgTest, WhatIsNoPictureIsEmpty) {
    EXPECT_EQ(Drawn("no picture").pixelColor(3, 3).alpha(), 0);
    EXPECT_EQ(Drawn(In24("<g><g>")).pixelColor(3, 3).alpha(), 0);
}

QPointF EndOf(const char* steps) {
    return SvgPath(QString::fromLatin1(steps)).currentPosition();
}

TEST(SvgPathTest, SmallLettersCountFromWhereTheLastStepEnded) {
    EXPECT_EQ(EndOf("M2 3L5 7"), QPointF(5, 7));
    EXPECT_EQ(EndOf("M2 3l5 7"), QPointF(7, 10));
    EXPECT_EQ(EndOf("M2 3H9V8"), QPointF(9, 8));
    EXPECT_EQ(EndOf("M2 3h9v8"), QPointF(11, 11));
    EXPECT_EQ(EndOf("M1 1c1 1 2 2 3 4"), QPointF(4, 5));
    EXPECT_EQ(EndOf("M1 1h4v4z"), QPointF(1, 1));
}

TEST(SvgPathTest, NumbersNeedNoBlankBetweenThemWhereTheyCanBeToldApart) {
    EXPECT_EQ(EndOf("M2-3l.5.25-1,4"), QPointF(1.5, 1.25));
    EXPECT_EQ(EndOf("M0 0a2 2 0 014 0"), QPointF(4, 0));
}

TEST(SvgPathTest, TheFlagsOfAnArcTellWhichWayItGoes) {
    EXPECT_NEAR(SvgPath("M4 0a4 4 0 0 1 4 4").boundingRect().right(), 8, 1e-6);
    EXPECT_NEAR(SvgPath("M4 8a4 4 0 0 1 0-8").boundingRect().left(), 0, 1e-3);
    EXPECT_NEAR(SvgPath("M4 8a4 4 0 0 0 0-8").boundingRect().right(), 8, 1e-3);
    EXPECT_NEAR(SvgPath("M4 0a4 4 0 1 1-4 4").boundingRect().bottom(), 8, 1e-3);
    // Radii that are too short grow until the arc is a half of the circle.
    EXPECT_NEAR(SvgPath("M4 8a1 1 0 0 1 0-8").boundingRect().left(), 0, 1e-3);
}

TEST(SvgPathTest, ASmoothCurveGoesOnAsTheLastOneCameIn) {
    EXPECT_EQ(SvgPath("M0 0C0 2 2 4 4 4S8 2 8 0"), SvgPath("M0 0C0 2 2 4 4 4C6 4 8 2 8 0"));
    EXPECT_EQ(SvgPath("M0 0S8 2 8 0"), SvgPath("M0 0C0 0 8 2 8 0"));
}

TEST(SvgPathTest, ItEndsBeforeWhatIsNoStep) {
    EXPECT_EQ(EndOf("M1 2L3 4X9 9"), QPointF(3, 4));
    EXPECT_TRUE(SvgPath("").isEmpty());
    EXPECT_EQ(EndOf("M1 2z7 7"), QPointF(1, 2));
}

} // namespace
} // namespace korvane
