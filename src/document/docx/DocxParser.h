#pragma once

#include "document/docx/DocxStyles.h"
#include "document/docx/Properties.h"
#include "document/model/Builder.h"
#include "document/package/Package.h"
#include "document/package/Xml.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace korvane::doc::docx {

/// What the elements at hand are about.
enum class Context : std::uint8_t {
    Body,
    Run,
    Para,
    Frame,
    Section,
    Table,
    TableBorders,
    TableGaps,
    Cell,
    CellBorders,
    CellGaps,
};

/// Reads the parts of a DOCX file.
class DocxParser {
public:
    /// The bytes of a file, or its parts.
    template <class Source>
    DocxParser(const Source& source, const Limits& limits)
        : package_(source, limits), limits_(limits), builder_(limits) {}

    ReadResult Read();

private:
    struct BodyElement;
    struct BodyElements;
    using Levels = std::map<int, ListMark>;

    struct ComplexField {
        Text instruction{};
        bool inResult = false;
        Index outer = 0;
    };

    void ReadSettings(const std::string& part);
    void ReadNumbering(const std::string& part);
    void ReadBody(const std::string& part);
    ReadResult Failed(Trouble trouble);

    void Open(std::string_view name, const XmlAttributes& attributes);
    void Close(std::string_view name);
    void Characters(std::string_view utf8);
    bool OpenContext(std::string_view name);
    void OpenInContext(std::string_view name, const XmlAttributes& attributes);
    void OpenInBody(std::string_view name, const XmlAttributes& attributes);
    void OpenInRun(std::string_view name, const XmlAttributes& attributes);
    void OpenInPara(std::string_view name, const XmlAttributes& attributes);
    void OpenInTable(std::string_view name, const XmlAttributes& attributes);
    void OpenInCell(std::string_view name, const XmlAttributes& attributes);
    void OpenSection(std::string_view name, const XmlAttributes& attributes);

    void OpenText(const XmlAttributes& attributes);
    void Break(const XmlAttributes& attributes);
    void BeginParagraph();
    void EndParagraph();
    void EndPending();
    void BeginTable();
    void TakeGridColumn(const XmlAttributes& attributes);
    void BeginCell();
    void EndCell();
    void Put(TextView text);
    void PutLetters(TextView text);
    void PutText();
    void BeginLink(const XmlAttributes& attributes);
    void BeginSimpleField(const XmlAttributes& attributes);
    void FieldMark(std::string_view kind);
    void TakeExtent(const XmlAttributes& attributes);
    void PutPicture(std::string_view id);
    std::optional<Index> FieldOf(TextView instruction);
    ListMark MarkOf(const ParaState& para) const;

    Package package_;
    Limits limits_;
    Builder builder_;
    ReadResult result_;
    DocxStyles styles_;
    std::map<int, Levels> numbering_;
    std::map<std::string, Package::Relation> relations_;

    std::vector<std::pair<Context, std::string>> contexts_;
    /// How deep the reading is in an element that isn't shown.
    std::size_t skipped_ = 0;

    // The paragraph and the run at hand.
    Look paraLook_{};
    Look markLook_{};
    Look look_{};
    ParaState para_{};
    bool markRun_ = false;
    bool breakNext_ = false;
    std::optional<ParaFormat> pending_;
    Index field_ = 0;
    std::vector<Index> outerFields_;
    std::vector<ComplexField> complex_;
    std::string text_;
    bool inText_ = false;
    bool inInstruction_ = false;
    bool preserved_ = false;
    std::int32_t imageWidth_ = 0;
    std::int32_t imageHeight_ = 0;

    // The table at hand.
    std::size_t tableDepth_ = 0;
    CellFormat tableCell_{};
    std::int32_t insideAcross_ = 0;
    std::int32_t insideDown_ = 0;
    std::optional<std::int32_t> tableLeft_;
    std::vector<std::int32_t> grid_;
    std::size_t gridColumn_ = 0;
    std::size_t rows_ = 0;
    CellFormat cell_{};
    bool cellOpen_ = false;
    std::vector<CellFormat> rowCells_;
};

} // namespace korvane::doc::docx
