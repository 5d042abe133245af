#include "text/control/frmTextList.h"

#include "common/number/Number.h"
#include "controls/text/TextControl.h"

#include <algorithm>

namespace korvane {

namespace {

/// In the order of `doc::ListKind`.
constexpr TextView kKinds[] = {u"No list",  u"Bullets",     u"1. 2. 3.",   u"a. b. c.",
                               u"A. B. C.", u"i. ii. iii.", u"I. II. III."};
constexpr int kMostNumber = 32'767;

bool IsList(const doc::ListMark& mark) {
    return mark.kind != doc::ListKind::None;
}

} // namespace

frmTextList::frmTextList(App& app, TextControl& target)
    : ControlForm(app, target, "frmTextList", u"Bullets and numbering") {
    lstKind.Click = [this] { ShowUse(); };
    lstKind.DblClick = [this] { cmdOK.Press(); };
    chkContinue.Click = [this] { ShowUse(); };
}

void frmTextList::Load() {
    for (const TextView kind : kKinds)
        lstKind.AddItem(kind);
    for (int level = 1; level <= TextControl::kListLevels; ++level)
        cboLevel.AddItem(NumberText(level));
    const doc::ListMark mark = Target().ParagraphFormat().list;
    before_ = Target().ListBefore();
    txtStart.Text = NumberText(mark.start);
    cboLevel.SetListIndex(std::min<int>(mark.level, TextControl::kListLevels - 1));
    lstKind.SetListIndex(static_cast<int>(mark.kind));
    chkContinue.Value = IsList(mark) && IsList(before_) && before_.list == mark.list ? 1 : 0;
    ShowUse();
    continued_ = Continues();
    lstKind.SetFocus();
}

/// What the chosen kind of list leaves to say.
void frmTextList::ShowUse() {
    const auto kind = static_cast<doc::ListKind>(lstKind.ListIndex());
    const bool list = kind != doc::ListKind::None;
    cboLevel.Enabled = list;
    chkContinue.Enabled = list && IsList(before_);
    txtStart.Enabled = list && kind != doc::ListKind::Bullet && chkContinue.Value == 0;
}

bool frmTextList::Continues() const {
    return chkContinue.Enabled && chkContinue.Value == 1;
}

doc::ListMark frmTextList::Wanted() const {
    doc::ListMark mark;
    mark.kind = static_cast<doc::ListKind>(lstKind.ListIndex());
    if (!IsList(mark)) return mark;
    mark.level = static_cast<std::uint8_t>(cboLevel.ListIndex());
    mark.start = Continues() ? before_.start
                             : static_cast<std::int32_t>(std::clamp(Val(TextView(txtStart.Text.Get())), 0.0,
                                                                    static_cast<double>(kMostNumber)));
    mark.list = Continues() ? before_.list : 0;
    return mark;
}

bool frmTextList::Accept() {
    const doc::ListMark now = Target().ParagraphFormat().list;
    doc::ListMark mark = Wanted();
    const bool same = mark.kind == now.kind && mark.level == now.level && mark.start == now.start &&
                      (mark.list == now.list || mark.list == 0) && Continues() == continued_;
    if (!same) Target().SetListMark(mark);
    return true;
}

} // namespace korvane
