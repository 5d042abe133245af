#pragma once

#include "document/store/TextStore.h"

#include <vector>

namespace korvane::doc {

/// Hears of what changes in a text, so that it can be shown.
class TextListener {
public:
    /// Paragraphs from the first one on were replaced by others. Tables are as they were.
    virtual void ParagraphsChanged(std::size_t first, std::size_t removed, std::size_t added) = 0;
    /// Tables, the page or the whole text are other ones.
    virtual void AllChanged() = 0;

protected:
    ~TextListener() = default;
};

/// A text in memory. It is never laid out here. A view of it listens to its changes and lays out a copy.
class MemoryTextStore final : public TextStore {
public:
    const Text& All() const override { return all_; }
    void Reset(Document document) override;
    Document Slice(Pos from, Pos to) const override;
    Pos Replace(Pos from, Pos to, const Document& piece) override;
    void Runs(Pos from, Pos to,
              const std::function<void(Pos, std::size_t, const Look&)>& show) const override;
    Look LookAt(Pos position) const override;
    void Format(Pos from, Pos to, const CharDelta& delta) override;
    ParaFormat ParaAt(Pos position) const override;
    void FormatParas(Pos from, Pos to, const std::function<void(ParaFormat&)>& change) override;
    std::optional<CellPlace> TableAt(Pos position) const override;
    std::optional<std::pair<Pos, Pos>> CellRange(const CellPlace& cell) const override;
    doc::TableSize SizeOf(Index table) const override;
    std::optional<CellFormat> CellAt(const CellPlace& cell) const override;
    std::optional<Index> InsertTable(Pos position, std::size_t rows, std::size_t columns) override;
    void FormatCells(Index table, const std::function<void(const CellPlace&, CellFormat&)>& change) override;
    Page PageSetup() const override { return document_.page; }
    void SetPageSetup(const Page& page) override;
    void BeginStep() override { ++depth_; }
    void EndStep() override;
    void JoinNext() override { joins_ = !undo_.empty(); }
    bool Undo() override;
    bool Redo() override;

    const Document& Whole() const { return document_; }
    Place PlaceAt(Pos position) const { return places_.At(position); }
    Pos PosOf(const Place& place) const { return places_.Of(place); }
    /// nullptr takes the listener away.
    void SetListener(TextListener* listener) { listener_ = listener; }

private:
    using Steps = std::vector<std::vector<Patch>>;

    Range RangeOf(Pos from, Pos to) const;
    Look LookOf(Index format, Index field) const;
    /// Carries the patch out and notes how it is taken back.
    void Edit(Patch patch);
    /// Carries the patch out in the document and in the whole text.
    Patch Carry(Patch patch);
    bool Move(Steps& from, Steps& to);
    void TellAll() const;

    Document document_{};
    Text all_{};
    mutable Places places_{document_};
    int depth_ = 0;
    bool joins_ = false;
    std::vector<Patch> step_;
    Steps undo_;
    Steps redo_;
    TextListener* listener_ = nullptr;
};

} // namespace korvane::doc
