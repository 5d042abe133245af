#include "text/markup/MarkupTags.h"

namespace korvane {

namespace {

constexpr MarkupTag kTags[] = {
    {u"<I>", u"</I>", u"  Italics  <I>, </I>", TagLook::Italic},
    {u"<B>", u"</B>", u"  Bold  <B>, </B>", TagLook::Bold},
    {u"<U>", u"</U>", u"  Underline  <U>, </U>", TagLook::Underline},
    {u"<S>", u"</S>", u"  Strikethru  <S>, </S>", TagLook::Strikethru},
    {u"<SUP>", u"</SUP>", u"  Superscript  <SUP>, </SUP>", TagLook::Raised},
    {u"<SUB>", u"</SUB>", u"  Subscript  <SUB>, </SUB>", TagLook::Lowered},
    {u"<H1>", u"</H1>", u"  Heading 1  <H1>, </H1>", TagLook::Heading, 2},
    {u"<H2>", u"</H2>", u"  Heading 2  <H2>, </H2>", TagLook::Heading, 4},
    {u"<H3>", u"</H3>", u"  Heading 3  <H3>, </H3>", TagLook::Heading, 6},
    {u"<H4>", u"</H4>", u"  Heading 4  <H4>, </H4>", TagLook::Heading, 8},
};

} // namespace

std::span<const MarkupTag> MarkupTags() {
    return kTags;
}

TagPair GetTagPair(int index) {
    const auto place = static_cast<std::size_t>(index);
    if (index < 0 || place >= std::size(kTags)) return {};
    return {kTags[place].opening, kTags[place].closing};
}

} // namespace korvane
