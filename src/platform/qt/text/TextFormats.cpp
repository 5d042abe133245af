#include "platform/qt/text/TextFormats.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Contrast.h"
#include "platform/qt/text/ShownDocument.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <algorithm>

namespace korvane {

namespace {

constexpr double kUsualResolution = 96;
/// Qt makes no small capitals of smaller characters, which nobody can read anyway.
constexpr int kLeastHalfPoints = 4;
/// The room for the mark of a list whose first line doesn't hang out.
constexpr std::int32_t kMarkRoom = 360;

double PixelsPerTwip() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return (screen == nullptr ? kUsualResolution : screen->logicalDotsPerInchY()) / kTwipsPerInch;
}

/// Qt raises characters by a share of their height in per cent.
double BaselineShare(const QTextCharFormat& format, std::int32_t twips) {
    const double height = QFontMetricsF(format.font()).height();
    return height > 0 ? 100 * TextPixels(twips) / height : 0;
}

void WriteScript(QTextCharFormat& look, const doc::CharFormat& format) {
    look.setVerticalAlignment(format.script == doc::Script::Raised    ? QTextCharFormat::AlignSuperScript
                              : format.script == doc::Script::Lowered ? QTextCharFormat::AlignSubScript
                                                                      : QTextCharFormat::AlignNormal);
    look.setBaselineOffset(format.baseLine == 0 ? 0 : BaselineShare(look, format.baseLine));
}

Qt::Alignment AlignmentOf(doc::Alignment alignment) {
    constexpr Qt::Alignment kAlignments[] = {Qt::AlignLeft | Qt::AlignAbsolute,
                                             Qt::AlignRight | Qt::AlignAbsolute, Qt::AlignHCenter,
                                             Qt::AlignJustify};
    return kAlignments[static_cast<std::size_t>(alignment)];
}

QTextOption::Tab TabOf(const doc::TabStop& stop, std::int32_t lineStart) {
    constexpr QTextOption::TabType kTypes[] = {QTextOption::LeftTab, QTextOption::RightTab,
                                               QTextOption::CenterTab, QTextOption::DelimiterTab};
    const auto type = kTypes[static_cast<std::size_t>(stop.type) - 1];
    const bool decimal = type == QTextOption::DelimiterTab;
    return {TextPixels(stop.at - lineStart), type, decimal ? QLocale().decimalPoint().front() : QChar()};
}

/// Qt counts tabs from the start of the line, files count them from the margin.
QList<QTextOption::Tab> TabsOf(const doc::ParaFormat& format) {
    const std::int32_t start = FirstLineStart(format);
    std::vector<doc::TabStop> stops = format.tabs;
    // The text of a hanging first line goes on at the indent of the others.
    if (format.first < 0) stops.push_back({format.left});
    std::ranges::sort(stops, {}, &doc::TabStop::at);
    QList<QTextOption::Tab> tabs;
    for (const doc::TabStop& stop : stops) {
        if (stop.at > start) tabs.push_back(TabOf(stop, start));
    }
    return tabs;
}

void WriteSpacing(QTextBlockFormat& look, const doc::ParaFormat& format) {
    if (format.spacingExact > 0)
        look.setLineHeight(TextPixels(format.spacingExact), QTextBlockFormat::FixedHeight);
    else if (format.spacingPercent != 100)
        look.setLineHeight(format.spacingPercent, QTextBlockFormat::ProportionalHeight);
}

double Room(std::int32_t twips) {
    return TextPixels(std::max(twips, 0));
}

/// The cells of a large table keep Qt's own format, in which Qt finds the direction when it shows them.
Qt::LayoutDirection DirectionOf(const doc::Paragraph& paragraph) {
    if (paragraph.cell.table != 0) return Qt::LayoutDirectionAuto;
    return QStringView(paragraph.text).isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

} // namespace

double TextPixels(std::int32_t twips) {
    return twips * PixelsPerTwip();
}

std::int32_t TextTwips(double pixels) {
    return static_cast<std::int32_t>(std::lround(pixels / PixelsPerTwip()));
}

std::int32_t FirstLineStart(const doc::ParaFormat& format) {
    const std::int32_t left = std::max(format.left, 0);
    if (format.list.kind == doc::ListKind::None) return std::max(left + format.first, 0);
    // The mark is before the text.
    return format.first < 0 ? left : left + format.first + kMarkRoom;
}

std::int32_t FrameRoom(const doc::ParaFormat& format, doc::FrameBit side) {
    return (format.frame & side) == 0 ? 0
                                      : std::max(format.frameDistance, 0) + std::max(format.frameWidth, 0);
}

QTextCharFormat CharLook(const doc::CharFormat& format, TextView font) {
    QTextCharFormat look;
    look.setFontFamilies({ToQString(font)});
    look.setFontPointSize(std::max<int>(format.halfPoints, kLeastHalfPoints) / 2.0);
    look.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    look.setFontItalic(format.italic);
    look.setFontUnderline(format.underline);
    look.setFontStrikeOut(format.strike);
    look.setFontCapitalization(format.smallCaps ? QFont::SmallCaps : QFont::MixedCase);
    if (format.fore != kNoColour)
        look.setForeground(ToQColor(format.fore));
    else if (format.back != kNoColour)
        look.setForeground(BlackOrWhite(ToQColor(format.back)));
    if (format.back != kNoColour) look.setBackground(ToQColor(format.back));
    WriteScript(look, format);
    return look;
}

QTextBlockFormat ParagraphLook(const doc::ParaFormat& format) {
    QTextBlockFormat look;
    // A format that nothing was said of must be Qt's own, for most cells of a large table have it.
    const auto set = [&look](QTextFormat::Property property, std::int32_t twips) {
        if (twips != 0) look.setProperty(property, TextPixels(twips));
    };
    const std::int32_t left = std::max(format.left, 0);
    if (format.alignment != doc::Alignment::Left) look.setAlignment(AlignmentOf(format.alignment));
    set(QTextFormat::BlockLeftMargin, left + FrameRoom(format, doc::kFrameLeft));
    set(QTextFormat::BlockRightMargin, std::max(format.right, 0) + FrameRoom(format, doc::kFrameRight));
    set(QTextFormat::TextIndent, FirstLineStart(format) - left);
    set(QTextFormat::BlockTopMargin, std::max(format.before, 0) + FrameRoom(format, doc::kFrameTop));
    set(QTextFormat::BlockBottomMargin, std::max(format.after, 0) + FrameRoom(format, doc::kFrameBottom));
    if (const auto tabs = TabsOf(format); !tabs.empty()) look.setTabPositions(tabs);
    WriteSpacing(look, format);
    if (format.pageBreakBefore) look.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    return look;
}

QTextTableCellFormat TableCellLook(const doc::CellFormat& cell, const QTextCharFormat& characters) {
    QTextTableCellFormat look;
    look.merge(characters);
    // The background of a cell has the same property as that of characters.
    look.clearBackground();
    if (cell.back != kNoColour) look.setBackground(ToQColor(cell.back));
    look.setLeftPadding(Room(cell.gapLeft));
    look.setRightPadding(Room(cell.gapRight));
    return look;
}

const QTextCharFormat& TextFormats::OfChars(doc::Index format) {
    if (chars_.size() <= format) chars_.resize(document_.chars.Size());
    auto& look = chars_[format];
    const doc::CharFormat& wanted = document_.chars[format];
    if (!look) look = CharLook(wanted, document_.fonts[wanted.font]);
    return *look;
}

const QTextBlockFormat& TextFormats::OfParagraph(const doc::Paragraph& paragraph) {
    const Qt::LayoutDirection direction = DirectionOf(paragraph);
    auto& looks = paragraphs_[direction];
    if (looks.size() <= paragraph.format) looks.resize(document_.paras.Size());
    auto& look = looks[paragraph.format];
    if (!look) {
        look = ParagraphLook(document_.paras[paragraph.format]);
        if (direction != Qt::LayoutDirectionAuto) look->setLayoutDirection(direction);
        // Qt leaves no room for an empty block before a table unless the block says something of its ground.
        if (paragraph.cell.table == 0) look->setBackground(Qt::NoBrush);
    }
    return *look;
}

QTextCharFormat TextFormats::OfRun(const doc::Run& run) {
    if (run.image == 0) return OfChars(run.format);
    const doc::Image& image = document_.images[run.image - 1];
    QTextImageFormat look;
    look.merge(OfChars(run.format));
    look.setName(PictureName(run.image));
    if (image.width > 0) look.setWidth(TextPixels(image.width));
    if (image.height > 0) look.setHeight(TextPixels(image.height));
    return look;
}

void TextFormats::Clear() {
    chars_.clear();
    paragraphs_ = {};
}

} // namespace korvane
