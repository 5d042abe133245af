#include "document/editing/TextEditing.h"

#include <algorithm>

namespace korvane::doc {

namespace {

/// How far each level is indented, with its mark hanging out.
constexpr std::int32_t kLevelIndent = 360;

bool IsList(const ListMark& mark) {
    return mark.kind != ListKind::None;
}

void Indent(ParaFormat& format, const ListMark& mark) {
    format.left = IsList(mark) ? (mark.level + 1) * kLevelIndent : 0;
    format.first = IsList(mark) ? -kLevelIndent : 0;
}

} // namespace

ListMark TextEditing::ListBefore() const {
    for (Pos at = start_; at > 0;) {
        at = All().rfind(kCrLf, at - 1);
        if (at == Text::npos) break;
        const ListMark mark = store_->ParaAt(at).list;
        if (IsList(mark)) return mark;
    }
    return {};
}

/// A number that no list has.
Index TextEditing::FreeList() const {
    const Document document = store_->Slice(0, All().size());
    Index last = 0;
    for (const Paragraph& paragraph : document.paragraphs)
        last = std::max(last, document.FormatOf(paragraph).list.list);
    return last + 1;
}

void TextEditing::SetListMark(ListMark mark) {
    const ListMark now = Para().list;
    if (IsList(mark) && mark.list == 0) {
        const ListMark before = ListBefore();
        const bool stays = IsList(now) && (!IsList(before) || now.list != before.list);
        mark.list = stays ? now.list : FreeList();
    }
    if (mark == now && start_ == end_) return;
    ChangeParas([&mark](ParaFormat& format) {
        if (IsList(mark) || IsList(format.list)) Indent(format, mark);
        format.list = mark;
    });
}

} // namespace korvane::doc
