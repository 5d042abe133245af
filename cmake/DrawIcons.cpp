// draw_icons OUTPUT LIST FOLDER: draws the icons in the list from their SVG files in the folder, for the
// program to take along (platform/qt/look/ReadyIcons.h). Each line of the list is a size and the names of the
// icons.

#include "platform/qt/look/DrawSvg.h"
#include "platform/qt/look/ReadyIcons.h"

#include <QFile>
#include <QTextStream>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using korvane::ReadyIcon;

[[noreturn]] void Fail(const QString& what) {
    std::fprintf(stderr, "%s\n", qPrintable(what));
    std::exit(1);
}

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) Fail("cannot read " + path);
    return file.readAll();
}

/// The shares of the two colours in each point. Red and green take their places while the icon is drawn.
std::string SharesOf(const QString& path, int size) {
    QByteArray svg = BytesOf(path);
    svg.replace(korvane::kStroke, "#ff0000").replace(korvane::kAccent, "#00ff00");
    const QImage picture = korvane::DrawSvg(svg, {size, size});
    std::string shares;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const QRgb point = reinterpret_cast<const QRgb*>(picture.constScanLine(y))[x];
            if (qBlue(point) != 0) Fail(path + " has a colour of its own");
            shares += static_cast<char>(qRed(point));
            shares += static_cast<char>(qGreen(point));
        }
    }
    return shares;
}

struct Drawn {
    ReadyIcon icon;
    std::string shares;
};

Drawn DrawOne(const QString& folder, const QString& name, int size) {
    Drawn drawn;
    const QByteArray word = name.toLatin1();
    if (word.size() >= static_cast<qsizetype>(drawn.icon.name.size())) Fail(name + " is too long a name");
    std::copy(word.begin(), word.end(), drawn.icon.name.begin());
    drawn.icon.size = static_cast<std::uint32_t>(size);
    drawn.shares = SharesOf(folder + "/" + name + ".svg", size);
    return drawn;
}

std::vector<Drawn> DrawAll(const QString& list, const QString& folder) {
    std::vector<Drawn> all;
    for (const QString& line : QString::fromLatin1(BytesOf(list)).split('\n', Qt::SkipEmptyParts)) {
        QStringList words = line.split(' ', Qt::SkipEmptyParts);
        const int size = words.takeFirst().toInt();
        for (const QString& name : words)
            for (const double scale : korvane::kReadyScales)
                all.push_back(DrawOne(folder, name, static_cast<int>(size * scale)));
    }
    return all;
}

template <class T>
std::string AsBytes(const T& value) {
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) Fail("usage: draw_icons OUTPUT LIST FOLDER");
    std::vector<Drawn> all = DrawAll(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    std::string index = AsBytes(static_cast<std::uint32_t>(all.size()));
    std::string pictures;
    const std::size_t begin = index.size() + all.size() * sizeof(ReadyIcon);
    for (Drawn& drawn : all) {
        drawn.icon.place = static_cast<std::uint32_t>(begin + pictures.size());
        index += AsBytes(drawn.icon);
        pictures += drawn.shares;
    }
    QFile output(QString::fromLocal8Bit(argv[1]));
    const QByteArray bytes = QByteArray::fromStdString(index + pictures);
    if (!output.open(QIODevice::WriteOnly) || output.write(bytes) != bytes.size())
        Fail("cannot write the pictures");
}
