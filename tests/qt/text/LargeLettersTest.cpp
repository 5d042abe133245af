#include "platform/qt/text/LargeLetters.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <algorithm>
#include <cstdlib>

namespace korvane {

namespace {

constexpr double kZoom = 5;
constexpr const char* kArabic = "\u0645\u0631\u062d\u0628\u0627 \u0628\u0643\u0645 \u0641\u064a "
                                "\u0647\u0630\u0627 \u0627\u0644\u0646\u0635";

class LargeLettersTest : public testing::Test {
protected:
    LargeLettersTest() {
        document_.setDefaultFont(QFont("DejaVu Sans", 12));
        document_.setTextWidth(180);
        document_.setPlainText("Words for a large line, and for another.");
        cursor_.select(QTextCursor::Document);
    }

    void Paint(QPainter& painter) {
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, text_);
        if (selected_) {
            QTextCharFormat look;
            look.setBackground(QColor(0, 0, 128));
            look.setForeground(Qt::yellow);
            QTextCursor part(&document_);
            part.setPosition(3);
            part.setPosition(20, QTextCursor::KeepAnchor);
            context.selections.append({part, look});
        }
        document_.documentLayout()->draw(&painter, context);
    }
    QImage Picture(const std::function<void(QPainter&)>& paint) {
        QImage image(900, 700, QImage::Format_RGB32);
        image.fill(page_);
        QPainter painter(&image);
        if (!clip_.isNull()) painter.setClipRect(clip_);
        painter.scale(kZoom, kZoom);
        paint(painter);
        return image;
    }
    QImage ByQt() {
        return Picture([this](QPainter& painter) { Paint(painter); });
    }
    QImage ByLetters() {
        const QRectF area = area_.isNull() ? QRectF({}, document_.size()) : area_;
        return Picture([&](QPainter& painter) {
            letters_.Draw(painter, document_, area, [this](QPainter& inner) { Paint(inner); });
        });
    }
    /// The greatest difference of a colour of a pixel.
    static int Difference(const QImage& one, const QImage& other) {
        int most = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                const QColor left = one.pixelColor(x, y);
                const QColor right = other.pixelColor(x, y);
                most =
                    std::max({most, std::abs(left.red() - right.red()),
                              std::abs(left.green() - right.green()), std::abs(left.blue() - right.blue())});
            }
        }
        return most;
    }
    void SetText(const char* text) {
        document_.setPlainText(QString::fromUtf8(text));
        cursor_.select(QTextCursor::Document);
    }
    bool HasLetters(const QImage& image) {
        return Difference(image, Picture([](QPainter&) {})) > 200;
    }
    /// Letters are up to half a pixel higher or lower, and a quarter beside.
    void ExpectTheSame() {
        constexpr int kPartOfAPixel = 192;
        const QImage drawn = ByLetters();
        EXPECT_TRUE(HasLetters(drawn));
        EXPECT_NE(drawn, ByQt()) << "Qt draws these letters as outlines.";
        EXPECT_LT(Difference(ByQt(), drawn), kPartOfAPixel);
    }

    QTextDocument document_;
    QTextCursor cursor_{&document_};
    LargeLetters letters_;
    QColor text_ = Qt::black;
    QColor page_ = Qt::white;
    QRect clip_;
    /// All of the document if it is null.
    QRectF area_;
    bool selected_ = false;
};

} // namespace

TEST_F(LargeLettersTest, LooksAsQtDrawsIt) {
    ExpectTheSame();
    EXPECT_GT(letters_.Kept(), 0);
}

TEST_F(LargeLettersTest, LooksSoInOtherColours) {
    ExpectTheSame();
    text_ = Qt::white;
    page_ = Qt::black;
    ExpectTheSame();
}

TEST_F(LargeLettersTest, LooksSoWithASelection) {
    selected_ = true;
    ExpectTheSame();
}

TEST_F(LargeLettersTest, LooksSoWithLinesAndColoursOfItsOwn) {
    QTextCharFormat look;
    look.setFontUnderline(true);
    look.setFontStrikeOut(true);
    look.setFontItalic(true);
    look.setFontWeight(QFont::Bold);
    look.setForeground(Qt::red);
    look.setBackground(Qt::cyan);
    cursor_.mergeCharFormat(look);
    ExpectTheSame();
}

TEST_F(LargeLettersTest, NothingIsDrawnBesideTheClip) {
    clip_ = QRect(50, 40, 200, 100);
    ExpectTheSame();
    const QImage drawn = ByLetters();
    QImage outside = drawn;
    QPainter(&outside).fillRect(clip_, page_);
    EXPECT_FALSE(HasLetters(outside));
}

TEST_F(LargeLettersTest, LinesFarFromTheAreaAreLeftToQt) {
    SetText("one\ntwo\nthree\nfour\nfive\nsix\nseven");
    area_ = QRectF(0, 0, 180, document_.size().height() / document_.blockCount());
    EXPECT_TRUE(HasLetters(ByLetters()));
    const qsizetype ofTheArea = letters_.Kept();
    EXPECT_GT(ofTheArea, 0);
    area_ = {};
    ByLetters();
    EXPECT_GT(letters_.Kept(), ofTheArea);
}

TEST_F(LargeLettersTest, TheSecondPaintIsOfTheSamePictures) {
    const QImage first = ByLetters();
    const qsizetype kept = letters_.Kept();
    EXPECT_EQ(ByLetters(), first);
    EXPECT_EQ(letters_.Kept(), kept);
}

TEST_F(LargeLettersTest, LooksSoInJustifiedLines) {
    QTextBlockFormat justified;
    justified.setAlignment(Qt::AlignJustify);
    cursor_.mergeBlockFormat(justified);
    ExpectTheSame();
}

TEST_F(LargeLettersTest, LooksSoInWritingFromTheRight) {
    SetText(kArabic);
    ExpectTheSame();
}

TEST_F(LargeLettersTest, LooksSoInJustifiedWritingFromTheRight) {
    SetText(kArabic);
    QTextBlockFormat justified;
    justified.setAlignment(Qt::AlignJustify);
    cursor_.mergeBlockFormat(justified);
    ExpectTheSame();
}

TEST_F(LargeLettersTest, LooksSoInSeveralWritingsOfALine) {
    SetText("\u0440\u0443 12 \u0645\u0631 e\u0301 fi \u03b1");
    ExpectTheSame();
}

TEST_F(LargeLettersTest, LooksSoWhereLettersAreRaisedOrSmallCapitals) {
    QTextCharFormat look;
    look.setBaselineOffset(30);
    look.setFontCapitalization(QFont::SmallCaps);
    cursor_.mergeCharFormat(look);
    ExpectTheSame();
    look.setBaselineOffset(-30);
    cursor_.mergeCharFormat(look);
    ExpectTheSame();
}

TEST_F(LargeLettersTest, LooksSoInCells) {
    cursor_.movePosition(QTextCursor::Start);
    QTextTable& table = *cursor_.insertTable(1, 2);
    table.cellAt(0, 0).firstCursorPosition().insertText("left");
    table.cellAt(0, 1).firstCursorPosition().insertText("right");
    ExpectTheSame();
}

TEST_F(LargeLettersTest, SmallLettersAreDrawnByQt) {
    document_.setDefaultFont(QFont("DejaVu Sans", 6));
    EXPECT_EQ(ByLetters(), ByQt());
    EXPECT_EQ(letters_.Kept(), 0);
}

TEST_F(LargeLettersTest, KeepsABoundedNumberOfPictures) {
    LargeLetters::Letter letter{QRawFont::fromFont(QFont("DejaVu Sans", 12)), 0, 20, qRgb(0, 0, 0), 0};
    for (quint32 glyph = 1; glyph < 500; ++glyph) {
        letter.glyph = glyph;
        ASSERT_NE(letters_.PictureOf(letter), nullptr);
        ASSERT_LE(letters_.Kept(), LargeLetters::kMostKept);
    }
    letter.scale = 1000;
    EXPECT_EQ(letters_.PictureOf(letter), nullptr);
}

} // namespace korvane
