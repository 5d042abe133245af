#include "text/insert/frmElements.h"

#include "common/number/Number.h"
#include "common/text/SymbolFont.h"
#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/InsertChoices.h"
#include "controls/KeyTable.h"
#include "platform/InstalledFonts.h"
#include "text/insert/InsertTarget.h"

#include <span>

namespace korvane {

namespace {

constexpr StoredPlace kPlace{&Settings::ElementsLeft, &Settings::ElementsTop, &Settings::ElementsWidth,
                             &Settings::ElementsHeight};

using Codes = std::span<const unsigned char>;

constexpr unsigned char kShapes[] = {74,  75,  76,  223, 224, 225, 226, 239, 240,
                                     241, 242, 199, 196, 228, 230, 229, 227, 252};
constexpr unsigned char kSymbols[] = {
    150, 151, 149, 183, 145, 146, 139, 155, 171, 187, 147, 148, 188, 189, 190, 167, 169, 163, 165,
    177, 134, 196, 228, 214, 246, 220, 252, 223, 140, 156, 205, 237, 201, 233, 193, 225, 211, 243,
    218, 250, 221, 253, 204, 236, 200, 232, 192, 224, 210, 242, 217, 249, 206, 238, 202, 234, 194,
    226, 212, 244, 219, 251, 195, 227, 213, 245, 207, 239, 203, 235, 159, 255, 197, 229, 216, 248,
    198, 230, 199, 231, 209, 241, 138, 154, 208, 240, 222, 254, 161, 191, 181};

constexpr TextView kShapeFont = u"Wingdings";
constexpr TextView kSymbolFont = u"Cambria";
constexpr int kFirstSize = 10;
constexpr int kLastSize = 16;
/// In points; as large as the characters are put in at first.
constexpr int kShownSize = 14;

void FillSizes(ListBox& list, int index) {
    for (int size = kFirstSize; size <= kLastSize; ++size)
        list.AddItem(NumberText(size));
    list.SetListIndex(index);
}

} // namespace

/// One half of the window.
struct frmElements::Side {
    ListBox& list;
    ListBox& sizes;
    Codes codes;
    TextView font;
    std::int16_t& size;
    std::int16_t& sizeIndex;
};

struct frmElements::Tables {
    using Window = frmElements;
    static constexpr MenuRow<Window> kMenu[] = {
        {0, "mnuShape", u"Insert &shape", "", &Window::cmdAccept1},
        {0, "mnuSymbol", u"Insert s&ymbol", "", &Window::cmdAccept2},
    };
    static constexpr WindowKey<Window> kKeys[] = {{"Esc", &Window::Close}};
    static constexpr WindowKey<Window> kShapeKeys[] = {{"Return", &Window::cmdAccept1}};
    static constexpr WindowKey<Window> kSymbolKeys[] = {{"Return", &Window::cmdAccept2}};
};

frmElements::frmElements(App& app, InsertTarget* target)
    : Form(app.Forms(), "frmElements", u"Shapes & Symbols"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app),
      target_(target) {
    cmdAccept1.Click = [this] { cmdAccept1_Click(); };
    cmdAccept2.Click = [this] { cmdAccept2_Click(); };
    for (CommandButton* button : {&cmdAccept1, &cmdAccept2})
        button->Enabled = target != nullptr;
    lstShapes.DblClick = [this] { cmdAccept1.Press(); };
    lstSymbols.DblClick = [this] { cmdAccept2.Press(); };
    lstShapes.KeyDown = KeysOf(*this, Tables::kShapeKeys);
    lstSymbols.KeyDown = KeysOf(*this, Tables::kSymbolKeys);
}

/// The list shows what the shapes mean, also where their font is missing. The text gets code and font all the
/// same.
void frmElements::FillShapes() {
    const bool hasFont = app_.Fonts() != nullptr && app_.Fonts()->Has(kShapeFont);
    lstShapes.Font = FontSpec{hasFont ? Text(kShapeFont) : Text(), kShownSize};
    for (const unsigned char code : kShapes) {
        const char16_t shown = hasFont ? app_.Page().Decode(code) : WingdingsLike(code).value_or(code);
        lstShapes.AddItem(TextView(&shown, 1));
    }
}

void frmElements::FillSymbols() {
    lstSymbols.Font = FontSpec{Text(kSymbolFont), kShownSize};
    for (const unsigned char code : kSymbols) {
        const char16_t shown = app_.Page().Decode(code);
        lstSymbols.AddItem(TextView(&shown, 1));
    }
}

void frmElements::Load() {
    const InsertChoices& choices = app_.Exchange<InsertChoices>();
    FillShapes();
    FillSymbols();
    FillSizes(lstShapeSize, choices.ShapeSizeIndex);
    FillSizes(lstSymbolSize, choices.SymbolSizeIndex);
    lstShapes.SetListIndex(0);
    lstSymbols.SetListIndex(0);
    RestorePlace(app_, *this, kPlace);
}

void frmElements::Unload() {
    StorePlace(app_, *this, kPlace);
}

void frmElements::KeyDown(KeyEvent& key) {
    RunKey(Tables::kKeys, *this, key);
}

void frmElements::Insert(const Side& side) {
    const int index = side.list.ListIndex();
    if (target_ == nullptr || index < 0) return;
    const int sizeRow = side.sizes.ListIndex();
    if (sizeRow >= 0) side.size = static_cast<std::int16_t>(kFirstSize + sizeRow);
    const char16_t character = app_.Page().Decode(side.codes[static_cast<std::size_t>(index)]);
    target_->WriteOnceIn(side.font, side.size, TextView(&character, 1));
    side.sizeIndex = static_cast<std::int16_t>(sizeRow);
}

void frmElements::cmdAccept1_Click() {
    InsertChoices& choices = app_.Exchange<InsertChoices>();
    Insert({lstShapes, lstShapeSize, kShapes, kShapeFont, choices.ShapeSize, choices.ShapeSizeIndex});
}

void frmElements::cmdAccept2_Click() {
    InsertChoices& choices = app_.Exchange<InsertChoices>();
    Insert({lstSymbols, lstSymbolSize, kSymbols, kSymbolFont, choices.SymbolSize, choices.SymbolSizeIndex});
}

} // namespace korvane
