#pragma once

#include "common/text/Text.h"
#include "document/model/Document.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextTable>
#include <array>
#include <optional>
#include <vector>

namespace korvane {

/// The length of so many twips in a text, in pixels. Characters have their size in points, so this follows
/// the resolution with which they are drawn.
double TextPixels(std::int32_t twips);
std::int32_t TextTwips(double pixels);

/// How the formats of a document look in Qt. Formats don't change once a document has them, so each is made
/// only once.
class TextFormats {
public:
    /// The document must live as long as this.
    explicit TextFormats(const doc::Document& document) : document_(document) {}

    const QTextCharFormat& OfChars(doc::Index format);
    /// Tells the direction of the text, which Qt would search for in every paragraph with every key.
    const QTextBlockFormat& OfParagraph(const doc::Paragraph& paragraph);
    /// The look of a picture among characters.
    QTextCharFormat OfRun(const doc::Run& run);
    /// Forgets everything, for another document takes its place.
    void Clear();

private:
    const doc::Document& document_;
    std::vector<std::optional<QTextCharFormat>> chars_;
    /// By the direction of the text.
    std::array<std::vector<std::optional<QTextBlockFormat>>, Qt::LayoutDirectionAuto + 1> paragraphs_;
};

QTextCharFormat CharLook(const doc::CharFormat& format, TextView font);
QTextBlockFormat ParagraphLook(const doc::ParaFormat& format);
/// The look of a cell that is empty or begins with characters of this look.
QTextTableCellFormat TableCellLook(const doc::CellFormat& cell, const QTextCharFormat& characters);

/// Where the text of a paragraph's first line begins, from the margin in twips.
std::int32_t FirstLineStart(const doc::ParaFormat& format);
/// How much room the frame takes on a side between the line and the text, in twips.
std::int32_t FrameRoom(const doc::ParaFormat& format, doc::FrameBit side);

} // namespace korvane
