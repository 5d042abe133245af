#include "platform/qt/look/ReadyIcons.h"

#include "SourceTree.h"
#include "platform/qt/look/DrawSvg.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTextStream>
#include <algorithm>
#include <cstdlib>

namespace korvane {
namespace {

QString InIcons(const QString& name) {
    return QStringLiteral(KORVANE_SOURCE_DIR "/src/platform/qt/look/icons/") + name;
}

QImage FromSvg(const QString& name, int size, const QColor& stroke, const QColor& accent) {
    QFile file(InIcons(name + ".svg"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
    QByteArray svg = file.readAll();
    return DrawSvg(svg.replace(kStroke, stroke.name().toLatin1()).replace(kAccent, accent.name().toLatin1()),
                   {size, size});
}

int LargestDifference(const QImage& one, const QImage& other) {
    EXPECT_EQ(one.size(), other.size());
    int largest = 0;
    for (qsizetype i = 0; i < std::min(one.sizeInBytes(), other.sizeInBytes()); ++i)
        largest = std::max(largest, std::abs(one.constBits()[i] - other.constBits()[i]));
    return largest;
}

TEST(ReadyIcons, AreThoseThatWouldBeDrawn) {
    QFile list(InIcons("ready.txt"));
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    int compared = 0;
    for (QTextStream lines(&list); !lines.atEnd();) {
        QStringList words = lines.readLine().split(' ', Qt::SkipEmptyParts);
        const int size = words.takeFirst().toInt();
        for (const QString& name : words) {
            for (const double scale : kReadyScales) {
                const int points = static_cast<int>(size * scale);
                for (const auto& [stroke, accent] : {std::pair<QColor, QColor>(kStroke, kAccent),
                                                     {"#ffffff", "#6fb1f5"},
                                                     {"#808080", "#808080"}}) {
                    const QImage ready = DrawReadyIcon(name, {points, points}, stroke, accent);
                    ASSERT_FALSE(ready.isNull()) << qPrintable(name) << points;
                    // Each of the two shares is rounded.
                    EXPECT_LE(LargestDifference(ready, FromSvg(name, points, stroke, accent)), 4)
                        << qPrintable(name) << points;
                    ++compared;
                }
            }
        }
    }
    EXPECT_GT(compared, 300);
}

TEST(ReadyIcons, AreOnlyThereInTheirSizes) {
    EXPECT_TRUE(DrawReadyIcon("cmdOpen", {21, 21}, Qt::black, Qt::black).isNull());
    EXPECT_TRUE(DrawReadyIcon("cmdOpen", {20, 24}, Qt::black, Qt::black).isNull());
    EXPECT_TRUE(DrawReadyIcon("noSuchIcon", {20, 20}, Qt::black, Qt::black).isNull());
}

} // namespace
} // namespace korvane
