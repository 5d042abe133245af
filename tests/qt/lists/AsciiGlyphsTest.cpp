#include "platform/qt/lists/AsciiGlyphs.h"

#include "ListsFixture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <cmath>

namespace korvane {
namespace {

class AsciiGlyphsTest : public testing::Test {
protected:
    template <class Draw>
    QImage Picture(const Draw& draw) const {
        QImage picture(200, 40, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painter.setFont(font);
        draw(painter);
        return picture;
    }
    QImage Drawn(const QString& text) {
        EXPECT_TRUE(glyphs.WidthOf(text, font));
        return Picture([&](QPainter& painter) { glyphs.Draw(painter, kPlace, text); });
    }
    QImage LaidOut(const QString& text) const {
        return Picture([&](QPainter& painter) { painter.drawText(kPlace, text); });
    }

    static constexpr QPointF kPlace{7, 25};
    QFont font = QApplication::font();
    AsciiGlyphs glyphs;
};

TEST_F(AsciiGlyphsTest, ATextLooksAsQtDrawsIt) {
    // No two letters here move closer together in any font.
    for (const char* text : {"minimum", "1,234", "11/21/2026  10:30", "H n u"})
        EXPECT_EQ(Drawn(text), LaidOut(text)) << text;
    EXPECT_NE(Drawn("minimum"), Drawn("1,234"));
}

TEST_F(AsciiGlyphsTest, ATextIsAsWideAsQtMeasuresIt) {
    for (const char* text : {"minimum", "1,234", ""})
        EXPECT_NEAR(glyphs.WidthOf(text, font).value_or(-1), QFontMetricsF(font).horizontalAdvance(text), 0.5)
            << text;
}

TEST_F(AsciiGlyphsTest, AnotherFontHasOtherGlyphs) {
    const QFont first = font;
    const auto width = glyphs.WidthOf("minimum", first);
    font.setPointSizeF(font.pointSizeF() * 2);
    EXPECT_GT(glyphs.WidthOf("minimum", font), *width * 1.5);
    EXPECT_EQ(Drawn("minimum"), LaidOut("minimum"));
    EXPECT_EQ(glyphs.WidthOf("minimum", first), width);
}

TEST_F(AsciiGlyphsTest, OtherTextsHaveToBeLaidOut) {
    for (const QString& text :
         {QString("caf\u00e9"), QString("two\nlines"), QString("tab\t"), QString("\u05d0b")})
        EXPECT_FALSE(glyphs.WidthOf(text, font)) << text.toStdString();
    font.setUnderline(true);
    EXPECT_FALSE(glyphs.WidthOf("minimum", font));
}

// In a list.

class PlainCellsTest : public test::ListsFixture {
protected:
    QImage Row(int row) {
        auto& view = Widget<QAbstractItemView>("ListView1");
        const QRect line = view.visualRect(view.model()->index(row, 0));
        return view.viewport()->grab(line).toImage();
    }
    /// The first and the last line of pixels that has any of the text.
    static std::pair<int, int> Inked(const QImage& picture) {
        std::pair<int, int> inked{-1, -1};
        for (int y = 0; y < picture.height(); ++y) {
            bool any = false;
            for (int x = 0; x < picture.width(); ++x)
                any = any || qGray(picture.pixel(x, y)) < 100;
            if (!any) continue;
            if (inked.first < 0) inked.first = y;
            inked.second = y;
        }
        return inked;
    }
};

TEST_F(PlainCellsTest, AreAtTheSameHeightAsTheOthers) {
    // A text that has to be laid out, and one that needn't be.
    form.ListView1.Add({.texts = {u"another row that has the keyboard", u""}});
    form.ListView1.Add({.texts = {u"Hxy", u""}});
    form.ListView1.Add({.texts = {u"Hxy\u00a0", u""}});
    form.ListView1.SetCurrent(1);
    QApplication::processEvents();
    const auto plain = Inked(Row(1));
    EXPECT_GT(plain.second, plain.first);
    EXPECT_EQ(plain, Inked(Row(2)));
}

TEST_F(PlainCellsTest, FollowTheFontOfTheList) {
    form.ListView1.Add({.texts = {u"another row that has the keyboard", u""}});
    form.ListView1.Add({.texts = {u"Hxy", u""}});
    form.ListView1.SetCurrent(1);
    const auto height = [this] {
        test::Settle();
        const auto [first, last] = Inked(Row(1));
        return last - first;
    };
    const int before = height();
    auto& view = Widget<QAbstractItemView>("ListView1");
    QFont larger = view.font();
    larger.setPointSize(larger.pointSize() * 2);
    view.setFont(larger);
    EXPECT_GT(height(), before * 3 / 2);
    EXPECT_GT(view.visualRect(view.model()->index(1, 0)).height(), before * 2);
}

} // namespace
} // namespace korvane
