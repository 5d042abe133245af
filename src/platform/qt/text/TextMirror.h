#pragma once

#include "common/text/Text.h"
#include "document/store/MemoryTextStore.h"
#include "platform/qt/text/TextFormats.h"

#include <QTextCursor>
#include <QTextDocument>
#include <functional>
#include <memory>
#include <vector>

namespace korvane {

/// Shows the text of a store in a document of Qt. The store has the only text that counts. What changes in it
/// is noted, and shown when the document is needed next, so that a thousand changes cost one.
///
/// Each paragraph is a block. A table is cut into several of Qt's tables, for Qt lays a table out again as a
/// whole with every key. Qt wants a block before each table, so there are blocks without a paragraph; the
/// view keeps the cursor out of them.
class TextMirror final : private doc::TextListener {
public:
    /// The cells of one of Qt's tables. A larger table of ours is cut.
    static constexpr std::size_t kMostCells = 120;

    /// The store must live until this is destroyed.
    explicit TextMirror(doc::MemoryTextStore& store);
    TextMirror(const TextMirror&) = delete;
    TextMirror& operator=(const TextMirror&) = delete;
    ~TextMirror();
    /// The store is gone. What was shown last stays.
    void Abandon() { listens_ = false; }

    /// Runs when the document isn't up to date any more.
    std::function<void()> Stale;
    /// Runs when another document takes the place of the one that was shown, before that one goes. The new
    /// one has a page of no size.
    std::function<void(QTextDocument&)> Replaced;

    /// The document, up to date.
    QTextDocument& Shown();
    /// The document as it was when it was needed last.
    QTextDocument& Current() const { return *shown_; }
    const doc::MemoryTextStore& Store() const { return store_; }

    // Positions in the store and in the document, which must be up to date.
    int ToQt(doc::Pos position) const { return ToQt(store_.PlaceAt(position)); }
    doc::Pos FromQt(int position) const;
    QTextBlock BlockOf(std::size_t paragraph) const;
    /// The paragraph of a block, or nothing for a block without one.
    std::optional<std::size_t> ParagraphOf(const QTextBlock& block) const;
    const doc::ParaFormat& FormatOf(std::size_t paragraph) const { return Text().FormatOf(At(paragraph)); }
    const doc::Document& Text() const { return store_.Whole(); }
    /// The number of a paragraph in its list.
    int ListNumber(std::size_t paragraph) const;

private:
    void ParagraphsChanged(std::size_t first, std::size_t removed, std::size_t added) override;
    void AllChanged() override;
    void GoStale();

    const doc::Paragraph& At(std::size_t paragraph) const { return Text().paragraphs[paragraph]; }
    int ToQt(const doc::Place& place) const;

    void Build();
    /// A document with the defaults of the text, and nothing else of it.
    std::unique_ptr<QTextDocument> EmptyDocument();
    void PutAll(QTextDocument& fresh);
    void ShowChanges();
    bool ShowInPlace(std::size_t first, std::size_t removed, std::size_t added);
    bool SameCells(std::size_t first, std::size_t count) const;
    bool OneCell(std::size_t first, std::size_t removed, std::size_t added) const;
    void ReplaceBlocks(std::size_t first, std::size_t removed, std::size_t added);

    std::size_t PutTable(QTextCursor& cursor, std::size_t first);
    std::size_t PutRows(QTextCursor& cursor, std::size_t first, const doc::Table& table, doc::Index row,
                        doc::Index end);
    std::size_t PutCell(QTextCursor& cursor, QTextTable& table, std::size_t first,
                        const doc::CellFormat& format);
    void PutBlock(QTextCursor& cursor, std::size_t paragraph);
    /// The background of a cell, if it has one.
    Colour GroundOf(const doc::CellPlace& cell) const;
    void PutText(QTextCursor& cursor, const doc::Paragraph& paragraph);
    void WriteEmptyLook(QTextCursor& cursor, std::size_t paragraph);

    doc::MemoryTextStore& store_;
    TextFormats formats_;
    std::unique_ptr<QTextDocument> shown_;
    /// The cells of the paragraphs that are shown.
    std::vector<doc::CellPlace> cells_;
    /// The paragraphs that have a block without a paragraph before their own.
    std::vector<std::size_t> spare_;
    /// The numbers in lists, or nothing after a change.
    mutable std::vector<int> listNumbers_;

    // What isn't shown yet: the paragraphs from the first one up to so many from the end, or all.
    bool listens_ = true;
    bool stale_ = false;
    bool all_ = true;
    std::size_t dirtyFirst_ = 0;
    std::size_t cleanTail_ = 0;
};

/// The text with the characters that mean something else to Qt exchanged for others of the same length.
QString ShownText(TextView text);

/// The rows from this one on that go into one of Qt's tables: the row after them.
doc::Index EndOfPart(const doc::Table& table, doc::Index row);

} // namespace korvane
