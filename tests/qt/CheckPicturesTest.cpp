#include "platform/qt/grid/CheckPictures.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace korvane {
namespace {

constexpr QRect kBox(3, 4, 14, 14);
const CheckColours kPlain{Qt::white, Qt::black, Qt::red};

QImage Painted(CheckPictures& pictures, const CheckColours& colours, bool ticked, double scale) {
    QImage image((QSizeF(24, 24) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::gray);
    QPainter painter(&image);
    pictures.Paint(painter, kBox, colours, ticked);
    return image;
}

QColor At(const QImage& image, QPointF place) {
    const QPointF pixel = place * image.devicePixelRatioF();
    return image.pixelColor(static_cast<int>(pixel.x()), static_cast<int>(pixel.y()));
}

TEST(CheckPicturesTest, ABoxIsPaintedInItsColoursAndNowhereElse) {
    CheckPictures pictures;
    for (const double scale : {1.0, 1.5, 2.0}) {
        const QImage image = Painted(pictures, kPlain, false, scale);
        EXPECT_EQ(At(image, {10, 11}), QColor(Qt::white)) << scale;
        EXPECT_LT(At(image, {3.5, 11}).lightness(), 100) << scale;
        EXPECT_EQ(At(image, {1, 11}), QColor(Qt::gray)) << scale;
        EXPECT_EQ(At(image, {19, 11}), QColor(Qt::gray)) << scale;
    }
}

TEST(CheckPicturesTest, OnlyATickedBoxHasItsTick) {
    CheckPictures pictures;
    const auto isTicked = [](const QImage& image) {
        const QColor lowest = At(image, {3 + 0.42 * 14, 4 + 0.72 * 14});
        return lowest.red() > 200 && lowest.green() < 150;
    };
    for (const double scale : {1.0, 1.5, 2.0}) {
        EXPECT_FALSE(isTicked(Painted(pictures, kPlain, false, scale))) << scale;
        EXPECT_TRUE(isTicked(Painted(pictures, kPlain, true, scale))) << scale;
        EXPECT_FALSE(isTicked(Painted(pictures, kPlain, false, scale))) << scale;
    }
}

TEST(CheckPicturesTest, EveryLookHasAPictureOfItsOwnHoweverManyThereAre) {
    CheckPictures pictures;
    for (int round = 0; round < 2; ++round) {
        for (int grey = 0; grey < 200; ++grey) {
            const QColor fill(grey, grey, grey);
            const QImage image = Painted(pictures, {fill, Qt::black, Qt::red}, false, 1);
            ASSERT_EQ(At(image, {10, 11}), fill);
        }
    }
}

TEST(CheckPicturesTest, APictureIsTheSameEachTime) {
    CheckPictures pictures;
    const QImage first = Painted(pictures, kPlain, true, 2);
    EXPECT_EQ(Painted(pictures, kPlain, true, 2), first);
}

} // namespace
} // namespace korvane
