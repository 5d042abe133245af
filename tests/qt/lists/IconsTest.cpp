#include "platform/qt/look/Icons.h"

#include "QtSupport.h"
#include "platform/qt/look/Palettes.h"

#include <gtest/gtest.h>

#include <QIcon>
#include <QPixmap>

namespace korvane {
namespace {

TEST(IconsTest, AnIconFollowsItsSizeItsModeAndThePalette) {
    const QIcon icon = TintedIcon(QStringLiteral("fileFound"));
    const QImage usual = icon.pixmap(16).toImage();
    EXPECT_EQ(icon.pixmap(16).toImage(), usual);
    EXPECT_EQ(icon.pixmap(32).width(), 32);
    EXPECT_NE(icon.pixmap(16, QIcon::Selected).toImage(), usual);
    {
        const test::UnderPalette under(DarkPalette());
        EXPECT_NE(icon.pixmap(16).toImage(), usual);
    }
    EXPECT_EQ(icon.pixmap(16).toImage(), usual);
}

TEST(IconsTest, ThereIsNoneWithoutAFile) {
    EXPECT_TRUE(TintedIcon(QStringLiteral("noSuchIcon")).isNull());
    EXPECT_TRUE(TintedIcon(QString()).isNull());
}

} // namespace
} // namespace korvane
