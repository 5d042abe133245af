#include "document/docx/DocxParser.h"

#include "document/docx/Docx.h"
#include "document/docx/DocxParts.h"
#include "document/model/FontScripts.h"
#include "document/model/Instruction.h"

#include <algorithm>
#include <utility>

namespace korvane::doc::docx {

namespace {

/// Elements that aren't shown: what was deleted, earlier formats, and what is there a second time.
constexpr std::string_view kSkipped[] = {
    "del",        "moveFrom",   "Choice",       "txbxContent", "pPrChange",     "rPrChange", "tblPrChange",
    "tcPrChange", "trPrChange", "sectPrChange", "object",      "tblGridChange", "ruby"};

struct ContextRow {
    std::string_view name;
    Context context;
};

constexpr ContextRow kContexts[] = {{"rPr", Context::Run},
                                    {"pPr", Context::Para},
                                    {"pBdr", Context::Frame},
                                    {"sectPr", Context::Section},
                                    {"tblPr", Context::Table},
                                    {"tblBorders", Context::TableBorders},
                                    {"tblCellMar", Context::TableGaps},
                                    {"tcPr", Context::Cell},
                                    {"tcBorders", Context::CellBorders},
                                    {"tcMar", Context::CellGaps}};

constexpr std::int64_t kEmuPerTwip = 635;
constexpr std::size_t kLongestInstruction = 1u << 20;
constexpr std::size_t kDeepestField = 64;

std::optional<std::size_t> SideOf(std::string_view name) {
    static constexpr std::pair<std::string_view, Side> kSides[] = {
        {"left", Side::Left}, {"start", Side::Left}, {"right", Side::Right},
        {"end", Side::Right}, {"top", Side::Top},    {"bottom", Side::Bottom}};
    const auto* const found = std::ranges::find(kSides, name, &std::pair<std::string_view, Side>::first);
    return found == std::end(kSides) ? std::nullopt : std::optional(static_cast<std::size_t>(found->second));
}

std::size_t EastAsianStart(TextView text) {
    return static_cast<std::size_t>(std::ranges::find_if(text, IsEastAsian) - text.begin());
}

std::size_t EastAsianLength(TextView text) {
    const auto isSecondHalf = [](char16_t c) { return c >= 0xDC00 && c <= 0xDFFF; };
    const auto goesOn = [&](char16_t c) { return IsEastAsian(c) || isSecondHalf(c); };
    return static_cast<std::size_t>(std::ranges::find_if_not(text, goesOn) - text.begin());
}

ImageKind KindOf(std::string_view bytes) {
    if (bytes.starts_with("\x89PNG")) return ImageKind::Png;
    return bytes.starts_with("\xFF\xD8") ? ImageKind::Jpeg : ImageKind::Other;
}

ListKind KindOfNumbers(std::string_view format) {
    static constexpr std::pair<std::string_view, ListKind> kFormats[] = {
        {"bullet", ListKind::Bullet},           {"lowerLetter", ListKind::LowerLetter},
        {"upperLetter", ListKind::UpperLetter}, {"lowerRoman", ListKind::LowerRoman},
        {"upperRoman", ListKind::UpperRoman},   {"none", ListKind::None}};
    const auto* const found =
        std::ranges::find(kFormats, format, &std::pair<std::string_view, ListKind>::first);
    return found == std::end(kFormats) ? ListKind::Decimal : found->second;
}

std::int32_t TwipsOfEmu(std::string_view emu) {
    std::int64_t number = 0;
    for (const char c : emu.substr(0, 12)) {
        if (c < '0' || c > '9') return 0;
        number = number * 10 + (c - '0');
    }
    return static_cast<std::int32_t>(std::min<std::int64_t>(number / kEmuPerTwip, 1'000'000));
}

} // namespace

ReadResult DocxParser::Failed(Trouble trouble) {
    result_.Tell(trouble);
    return std::move(result_);
}

ReadResult DocxParser::Read() {
    if (package_.OverLimit()) return Failed(Trouble::OverLimit);
    const std::string main = package_.MainPart();
    if (main.empty()) return Failed(Trouble::WrongFormat);
    for (Package::Relation& relation : package_.Relations(main)) {
        if (relation.type == "styles")
            styles_.Read(package_.Part(relation.target).value_or(""));
        else if (relation.type == "settings")
            ReadSettings(relation.target);
        else if (relation.type == "numbering")
            ReadNumbering(relation.target);
        relations_[relation.id] = relation;
    }
    ReadBody(main);
    EndCell();
    EndPending();
    if (package_.OverLimit()) builder_.Tell(Trouble::OverLimit);
    result_.document = builder_.Finish({});
    result_.Tell(builder_.Told());
    return std::move(result_);
}

void DocxParser::ReadSettings(const std::string& part) {
    XmlHandlers handlers;
    handlers.open = [this](std::string_view name, const XmlAttributes& attributes) {
        if (name == "defaultTabStop")
            builder_.Target().defaultTab = std::clamp(attributes.Number("val").value_or(720), 1, 1'000'000);
    };
    handlers.close = [](std::string_view) {};
    ReadXml(package_.Part(part).value_or(""), handlers);
}

void DocxParser::ReadNumbering(const std::string& part) {
    std::map<int, Levels> abstracts;
    Levels* levels = nullptr;
    int level = 0;
    int number = 0;
    XmlHandlers handlers;
    handlers.open = [&](std::string_view name, const XmlAttributes& attributes) {
        if (name == "abstractNum") levels = &abstracts[attributes.Number("abstractNumId").value_or(0)];
        if (name == "lvl") level = std::clamp(attributes.Number("ilvl").value_or(0), 0, 8);
        if (levels != nullptr && name == "start")
            (*levels)[level].start = attributes.Number("val").value_or(1);
        if (levels != nullptr && name == "numFmt")
            (*levels)[level].kind = KindOfNumbers(attributes.Get("val"));
        if (name == "num") number = attributes.Number("numId").value_or(0);
        if (name == "abstractNumId") numbering_[number] = abstracts[attributes.Number("val").value_or(0)];
    };
    handlers.close = [&levels](std::string_view name) {
        if (name == "abstractNum") levels = nullptr;
    };
    ReadXml(package_.Part(part).value_or(""), handlers);
}

void DocxParser::ReadBody(const std::string& part) {
    const std::optional<std::string> xml = package_.Part(part);
    if (!xml) return builder_.Tell(Trouble::Damaged);
    XmlHandlers handlers;
    handlers.open = [this](std::string_view name, const XmlAttributes& attributes) {
        Open(name, attributes);
    };
    handlers.close = [this](std::string_view name) { Close(name); };
    handlers.text = [this](std::string_view utf8) { Characters(utf8); };
    handlers.full = [this] { return builder_.Full(); };
    contexts_.emplace_back(Context::Body, "");
    const XmlOutcome outcome = ReadXml(*xml, handlers);
    if (outcome == XmlOutcome::TooDeep)
        builder_.Tell(Trouble::OverLimit);
    else if (outcome != XmlOutcome::Whole)
        builder_.Tell(Trouble::Damaged);
}

void DocxParser::Open(std::string_view name, const XmlAttributes& attributes) {
    if (skipped_ > 0 || std::ranges::find(kSkipped, name) != std::end(kSkipped)) {
        ++skipped_;
        return;
    }
    if (!OpenContext(name)) OpenInContext(name, attributes);
}

bool DocxParser::OpenContext(std::string_view name) {
    const auto* const row = std::ranges::find(kContexts, name, &ContextRow::name);
    if (row == std::end(kContexts)) return false;
    // The look of a paragraph's end is told within its properties.
    if (row->context == Context::Run) {
        markRun_ = contexts_.back().first == Context::Para;
        if (markRun_)
            markLook_ = paraLook_;
        else
            look_ = paraLook_;
    }
    contexts_.emplace_back(row->context, name);
    return true;
}

void DocxParser::OpenInContext(std::string_view name, const XmlAttributes& attributes) {
    switch (contexts_.back().first) {
    case Context::Body:
        return OpenInBody(name, attributes);
    case Context::Run:
        return OpenInRun(name, attributes);
    case Context::Para:
        return OpenInPara(name, attributes);
    case Context::Frame:
        return ApplyFrameSide(name, attributes, para_.format);
    case Context::Section:
        return OpenSection(name, attributes);
    default:
        break;
    }
    if (contexts_.back().first >= Context::Cell)
        OpenInCell(name, attributes);
    else
        OpenInTable(name, attributes);
}

void DocxParser::OpenInRun(std::string_view name, const XmlAttributes& attributes) {
    Look& look = markRun_ ? markLook_ : look_;
    if (name == "rStyle")
        styles_.Apply(std::string(attributes.Get("val")), builder_.Target(), look);
    else
        ApplyToLook(name, attributes, builder_.Target(), look);
}

void DocxParser::OpenInPara(std::string_view name, const XmlAttributes& attributes) {
    if (name != "pStyle") return ApplyToPara(name, attributes, para_);
    styles_.Begin(std::string(attributes.Get("val")), builder_.Target(), paraLook_, para_);
    markLook_ = look_ = paraLook_;
}

void DocxParser::OpenInTable(std::string_view name, const XmlAttributes& attributes) {
    if (tableDepth_ != 1) return;
    const std::optional<std::size_t> side = SideOf(name);
    switch (contexts_.back().first) {
    case Context::TableBorders:
        if (side) tableCell_.border[*side] = LineWidth(attributes);
        if (name == "insideV") insideAcross_ = LineWidth(attributes);
        if (name == "insideH") insideDown_ = LineWidth(attributes);
        return;
    case Context::TableGaps:
        if (side == static_cast<std::size_t>(Side::Left))
            tableCell_.gapLeft = std::max(attributes.Number("w").value_or(0), 0);
        if (side == static_cast<std::size_t>(Side::Right))
            tableCell_.gapRight = std::max(attributes.Number("w").value_or(0), 0);
        return;
    default:
        if (name == "tblInd") tableLeft_ = Bounded(attributes.Number("w").value_or(0));
    }
}

void DocxParser::OpenInCell(std::string_view name, const XmlAttributes& attributes) {
    if (tableDepth_ != 1) return;
    const std::optional<std::size_t> side = SideOf(name);
    switch (contexts_.back().first) {
    case Context::CellBorders:
        if (side) cell_.border[*side] = LineWidth(attributes);
        return;
    case Context::CellGaps:
        if (side == static_cast<std::size_t>(Side::Left))
            cell_.gapLeft = std::max(Bounded(attributes.Number("w").value_or(0)), 0);
        if (side == static_cast<std::size_t>(Side::Right))
            cell_.gapRight = std::max(Bounded(attributes.Number("w").value_or(0)), 0);
        return;
    default:
        break;
    }
    if (name == "shd") cell_.back = ColourOf(attributes.Get("fill"));
    if (name == "tcW" && attributes.Get("type") != "pct" && attributes.Get("type") != "auto")
        cell_.width = std::max(Bounded(attributes.Number("w").value_or(cell_.width)), 0);
    if (name == "gridSpan") {
        const std::size_t span =
            static_cast<std::size_t>(std::clamp(attributes.Number("val").value_or(1), 1, 64));
        for (std::size_t i = 1; i < span && gridColumn_ < grid_.size(); ++i)
            cell_.width = Bounded(cell_.width + grid_[gridColumn_++]);
    }
}

void DocxParser::OpenSection(std::string_view name, const XmlAttributes& attributes) {
    const auto set = [&](std::string_view attribute, Page::Size size) {
        const std::optional<int> number = attributes.Number(attribute);
        if (!number) return;
        builder_.Target().page[size] = std::max(Bounded(*number), 0);
        result_.pageGiven[size] = true;
    };
    if (name == "pgSz") {
        set("w", Page::Width);
        set("h", Page::Height);
    } else if (name == "pgMar") {
        set("left", Page::MarginLeft);
        set("top", Page::MarginTop);
        set("right", Page::MarginRight);
        set("bottom", Page::MarginBottom);
    }
}

struct DocxParser::BodyElement {
    std::string_view name;
    void (*open)(DocxParser& parser, const XmlAttributes& attributes);
    /// Whether it opens only in a table that is in no other one.
    bool inTable = false;
};

/// The rows of the table, which the parser lets name its routines.
struct DocxParser::BodyElements {
    using P = DocxParser;
    using Attributes = XmlAttributes;

    static constexpr BodyElement kRows[] = {
        {"t", [](P& p, const Attributes& a) { p.OpenText(a); }},
        {"r", [](P& p, const Attributes&) { p.look_ = p.paraLook_; }},
        {"p", [](P& p, const Attributes&) { p.BeginParagraph(); }},
        {"tab", [](P& p, const Attributes&) { p.Put(u"\t"); }},
        {"br", [](P& p, const Attributes& a) { p.Break(a); }},
        {"cr", [](P& p, const Attributes&) { p.Put(TextView(&kLineBreak, 1)); }},
        {"noBreakHyphen", [](P& p, const Attributes&) { p.Put(u"\u2011"); }},
        {"softHyphen", [](P& p, const Attributes&) { p.Put(u"\u00AD"); }},
        {"hyperlink", [](P& p, const Attributes& a) { p.BeginLink(a); }},
        {"fldSimple", [](P& p, const Attributes& a) { p.BeginSimpleField(a); }},
        {"fldChar", [](P& p, const Attributes& a) { p.FieldMark(a.Get("fldCharType")); }},
        {"instrText", [](P& p, const Attributes&) { p.inInstruction_ = true; }},
        {"extent", [](P& p, const Attributes& a) { p.TakeExtent(a); }},
        {"blip", [](P& p, const Attributes& a) { p.PutPicture(a.Get("embed")); }},
        {"imagedata", [](P& p, const Attributes& a) { p.PutPicture(a.Get("id")); }},
        {"tbl", [](P& p, const Attributes&) { p.BeginTable(); }},
        {"gridCol", [](P& p, const Attributes& a) { p.TakeGridColumn(a); }, true},
        {"tr", [](P& p, const Attributes&) { p.gridColumn_ = 0; }, true},
        {"tc", [](P& p, const Attributes&) { p.BeginCell(); }, true},
    };
};

void DocxParser::OpenInBody(std::string_view name, const XmlAttributes& attributes) {
    const auto* const row = std::ranges::find(BodyElements::kRows, name, &BodyElement::name);
    if (row == std::end(BodyElements::kRows) || (row->inTable && tableDepth_ != 1)) return;
    row->open(*this, attributes);
}

void DocxParser::OpenText(const XmlAttributes& attributes) {
    inText_ = true;
    preserved_ = attributes.Get("space") == "preserve";
}

void DocxParser::Break(const XmlAttributes& attributes) {
    if (attributes.Get("type") != "page") return Put(TextView(&kLineBreak, 1));
    if (!builder_.AtParagraphStart()) {
        EndParagraph();
        EndPending();
    }
    breakNext_ = true;
}

void DocxParser::BeginSimpleField(const XmlAttributes& attributes) {
    outerFields_.push_back(field_);
    field_ = FieldOf(FromUtf8(attributes.Get("instr"))).value_or(field_);
}

void DocxParser::TakeExtent(const XmlAttributes& attributes) {
    imageWidth_ = TwipsOfEmu(attributes.Get("cx"));
    imageHeight_ = TwipsOfEmu(attributes.Get("cy"));
}

void DocxParser::BeginTable() {
    if (++tableDepth_ > 1) return;
    EndPending();
    builder_.EndTable();
    tableCell_ = {};
    insideAcross_ = insideDown_ = 0;
    tableLeft_.reset();
    grid_.clear();
    rows_ = 0;
}

void DocxParser::TakeGridColumn(const XmlAttributes& attributes) {
    if (grid_.size() < limits_.columns)
        grid_.push_back(std::max(Bounded(attributes.Number("w").value_or(0)), 0));
}

void DocxParser::Close(std::string_view name) {
    if (skipped_ > 0) {
        --skipped_;
        return;
    }
    // The body has no name of its own, and an element of a damaged file may have none either.
    if (contexts_.size() > 1 && contexts_.back().second == name) {
        contexts_.pop_back();
        return;
    }
    if (contexts_.back().first != Context::Body) return;
    if (name == "t")
        PutText();
    else if (name == "p")
        EndParagraph();
    else if (name == "instrText")
        inInstruction_ = false;
    else if ((name == "hyperlink" || name == "fldSimple") && !outerFields_.empty()) {
        field_ = outerFields_.back();
        outerFields_.pop_back();
    } else if (tableDepth_ == 1 && name == "tc")
        EndCell();
    else if (tableDepth_ == 1 && name == "tr") {
        EndCell();
        if (rows_++ == 0 && !rowCells_.empty()) tableCell_.left.reset();
        if (!rowCells_.empty()) rowCells_.front().left = tableLeft_;
        builder_.EndRow(std::exchange(rowCells_, {}));
    } else if (name == "tbl" && tableDepth_ > 0 && --tableDepth_ == 0) {
        EndCell();
        builder_.EndTable();
    }
}

void DocxParser::Characters(std::string_view utf8) {
    if (skipped_ > 0) return;
    if (inText_)
        text_ += utf8;
    else if (inInstruction_ && !complex_.empty() && complex_.back().instruction.size() < kLongestInstruction)
        complex_.back().instruction += FromUtf8(utf8);
}

void DocxParser::PutText() {
    inText_ = false;
    Text text = FromUtf8(text_);
    text_.clear();
    for (char16_t& c : text) {
        if (c == u'\n' || c == u'\r')
            c = u' ';
        else if (c == kImageCharacter)
            c = u'\uFFFD';
    }
    Put(preserved_ ? TextView(text) : Trim(text));
}

void DocxParser::Put(TextView text) {
    if (text.empty()) return;
    EndPending();
    builder_.SetFormat(look_);
    builder_.SetField(field_);
    PutLetters(text);
}

void DocxParser::PutLetters(TextView text) {
    if (!look_.eastAsiaFont || look_.eastAsiaFont == look_.font) return builder_.Add(text);
    CharFormat eastAsian = look_;
    eastAsian.font = *look_.eastAsiaFont;
    while (!text.empty()) {
        const std::size_t letters = EastAsianStart(text);
        builder_.SetFormat(look_);
        if (letters > 0) builder_.Add(text.substr(0, letters));
        text.remove_prefix(letters);
        const std::size_t signs = EastAsianLength(text);
        builder_.SetFormat(eastAsian);
        if (signs > 0) builder_.Add(text.substr(0, signs));
        text.remove_prefix(signs);
    }
}

void DocxParser::BeginParagraph() {
    EndPending();
    styles_.Begin({}, builder_.Target(), paraLook_, para_);
    markLook_ = look_ = paraLook_;
}

void DocxParser::EndParagraph() {
    EndPending();
    if (builder_.AtParagraphStart()) builder_.SetFormat(markLook_);
    pending_ = para_.format;
    pending_->list = MarkOf(para_);
    pending_->pageBreakBefore |= std::exchange(breakNext_, false);
}

void DocxParser::EndPending() {
    if (pending_) builder_.EndParagraph(*pending_);
    pending_.reset();
}

void DocxParser::BeginCell() {
    EndPending();
    builder_.OpenCell();
    cellOpen_ = true;
    cell_ = tableCell_;
    if (!rowCells_.empty()) cell_.border[static_cast<std::size_t>(Side::Left)] = insideAcross_;
    if (rows_ > 0) cell_.border[static_cast<std::size_t>(Side::Top)] = insideDown_;
    if (gridColumn_ < grid_.size()) cell_.width = grid_[gridColumn_++];
}

void DocxParser::EndCell() {
    if (!cellOpen_) return;
    cellOpen_ = false;
    builder_.EndCell(pending_.value_or(ParaFormat{}));
    pending_.reset();
    rowCells_.push_back(cell_);
}

void DocxParser::BeginLink(const XmlAttributes& attributes) {
    outerFields_.push_back(field_);
    Text address;
    if (const auto relation = relations_.find(std::string(attributes.Get("id")));
        relation != relations_.end())
        address = FromUtf8(relation->second.target);
    if (const std::string_view anchor = attributes.Get("anchor"); !anchor.empty())
        address += u'#' + FromUtf8(anchor);
    if (!address.empty()) field_ = builder_.NewField({FieldKind::Hyperlink, address, {}});
}

std::optional<Index> DocxParser::FieldOf(TextView instruction) {
    const std::optional<Field> field = ReadInstruction(instruction);
    return field ? std::optional(builder_.NewField(*field)) : std::nullopt;
}

void DocxParser::FieldMark(std::string_view kind) {
    if (kind == "begin" && complex_.size() < kDeepestField) {
        complex_.push_back({{}, false, field_});
    } else if (kind == "separate" && !complex_.empty() && !complex_.back().inResult) {
        complex_.back().inResult = true;
        field_ = FieldOf(complex_.back().instruction).value_or(field_);
    } else if (kind == "end" && !complex_.empty()) {
        field_ = complex_.back().outer;
        complex_.pop_back();
    }
}

void DocxParser::PutPicture(std::string_view id) {
    const auto relation = relations_.find(std::string(id));
    if (relation == relations_.end() || relation->second.external) return;
    const std::optional<std::string> bytes = package_.Part(relation->second.target);
    if (!bytes) return;
    Image image{KindOf(*bytes), {}, std::exchange(imageWidth_, 0), std::exchange(imageHeight_, 0)};
    auto shared = std::make_shared_for_overwrite<char[]>(bytes->size());
    std::ranges::copy(*bytes, shared.get());
    image.bytes = {std::move(shared), bytes->size()};
    EndPending();
    builder_.SetFormat(look_);
    builder_.SetField(field_);
    builder_.AddImage(std::move(image));
}

ListMark DocxParser::MarkOf(const ParaState& para) const {
    const auto levels = numbering_.find(para.list);
    if (para.list <= 0 || levels == numbering_.end()) return {};
    const auto found = levels->second.find(para.level);
    if (found == levels->second.end() || found->second.kind == ListKind::None) return {};
    ListMark mark = found->second;
    mark.level = static_cast<std::uint8_t>(std::clamp(para.level, 0, 8));
    mark.list = static_cast<std::uint32_t>(para.list);
    return mark;
}

} // namespace korvane::doc::docx

namespace korvane::doc {

ReadResult ReadDocx(std::string_view bytes, const Limits& limits) {
    return docx::DocxParser(bytes, limits).Read();
}

ReadResult ReadDocxParts(const PackageParts& parts, const Limits& limits) {
    return docx::DocxParser(parts, limits).Read();
}

} // namespace korvane::doc
