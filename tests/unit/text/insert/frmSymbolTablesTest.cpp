#include "text/insert/frmSymbolTables.h"

#include "context/exchange/ListerRequest.h"
#include "testing/MemoryDocumentConverter.h"
#include "text/files/DocumentFiles.h"
#include "text/insert/InsertWindows.h"
#include "unit/text/insert/InsertStage.h"

#include <memory>
#include <vector>

namespace korvane {
namespace {

constexpr TextView kRtf = u"C:\\Data\\Symbols.rtf";
constexpr TextView kList = u"C:\\Data\\Symbols.lst";

class SymbolTablesTest : public InsertStage {
protected:
    SymbolTablesTest() {
        t.app.SetPort<TextFiles>(&documents);
        t.files.AddFile(Text(kRtf), "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Georgia;}}\\f1 one two}");
        t.files.AddFile(Text(kList), "alpha\r\nbeta");
    }
    ~SymbolTablesTest() override { t.app.SetPort<TextFiles>(nullptr); }

    frmSymbolTables& Open() {
        window = std::make_unique<frmSymbolTables>(t.app, &target);
        window->EnsureLoaded();
        return *window;
    }
    void Choose(const char* entry) { window->OfficeMenu1.Choose(entry); }
    int Zoom() const { return window->ThisTextCtrl.ZoomFactor; }

    MemoryDocumentConverter converter;
    DocumentFiles documents{t.files, CodePage::Windows1252(), &converter};
    std::unique_ptr<frmSymbolTables> window;
};

TEST_F(SymbolTablesTest, HasItsMenu) {
    std::vector<Text> captions;
    for (const MenuEntry& entry : Open().OfficeMenu1.Entries())
        captions.emplace_back(entry.caption);
    EXPECT_EQ(captions, (std::vector<Text>{u"E&xit", u"Centre scree&n", u"In&fo", u"&Get file", u"Zoom &in",
                                           u"Zoom &out", u"Insert &symbol"}));
}

TEST_F(SymbolTablesTest, OpensWithTheFileOfLastTime) {
    EXPECT_EQ(Open().ThisTextCtrl.All(), u"");
    t.app.Settings.SymbolListFile = Text(kRtf);
    EXPECT_EQ(Open().ThisTextCtrl.All(), u"one two");
    EXPECT_TRUE(window->ThisTextCtrl.Locked);
    t.app.Settings.SymbolListFile = u"C:\\gone.lst";
    EXPECT_EQ(Open().ThisTextCtrl.All(), u"");
}

TEST_F(SymbolTablesTest, AFileIsChosenAndKept) {
    Open();
    t.user.ChooseFile(Text(kList));
    Choose("mnuGetFile");
    EXPECT_EQ(t.user.Requests()[0].FileDialogFilter, u"*.lst;*.txt;*.asc");
    EXPECT_EQ(t.user.Requests()[0].FileDialogCaption, u"File with symbols in a table");
    EXPECT_EQ(window->ThisTextCtrl.All(), u"alpha\r\nbeta");
    EXPECT_EQ(t.app.Settings.SymbolListFile, kList);
    t.user.CancelChooser();
    Choose("mnuGetFile");
    EXPECT_EQ(t.app.Settings.SymbolListFile, kList);
}

TEST_F(SymbolTablesTest, OnlyThreeKindsOfFilesAreFormatted) {
    t.files.AddFile(u"C:\\Data\\Page.htm", "<b>x</b>");
    Open();
    t.user.ChooseFile(u"C:\\Data\\Page.htm");
    Choose("mnuGetFile");
    EXPECT_EQ(window->ThisTextCtrl.All(), u"<b>x</b>");
    t.user.ChooseFile(Text(kRtf));
    Choose("mnuGetFile");
    EXPECT_EQ(window->ThisTextCtrl.FontName(), u"Georgia");
}

TEST_F(SymbolTablesTest, DocumentsOfWordProcessorsAreReadWithTheirFormats) {
    TextControl document(form, "document");
    document.Files = &documents;
    document.SetAll(u"symbols");
    document.SetSelection(0, -1);
    document.SetFontName(u"Cambria");
    t.files.AddFile(u"C:\\Data\\Symbols.docx", document.SaveToMemory(TextFormat::Docx));
    t.files.AddFile(u"C:\\Data\\Symbols.DOC", "old document");
    converter.outcomes[Conversion::DocToRtf] = document.SaveToMemory(TextFormat::Rtf);
    for (const TextView path : {u"C:\\Data\\Symbols.docx", u"C:\\Data\\Symbols.DOC"}) {
        Open();
        t.user.ChooseFile(Text(path));
        Choose("mnuGetFile");
        EXPECT_EQ(window->ThisTextCtrl.All(), u"symbols");
        EXPECT_EQ(window->ThisTextCtrl.FontName(), u"Cambria");
    }
    EXPECT_EQ(converter.got[Conversion::DocToRtf], "old document");
}

TEST_F(SymbolTablesTest, AFileThatCannotBeReadLeavesTheText) {
    t.app.Settings.SymbolListFile = Text(kList);
    Open();
    t.user.ChooseFile(u"C:\\gone.rtf");
    Choose("mnuGetFile");
    EXPECT_EQ(window->ThisTextCtrl.All(), u"alpha\r\nbeta");
    EXPECT_EQ(t.app.Settings.SymbolListFile, kList);
}

TEST_F(SymbolTablesTest, TheSelectionGoesToTheTargetInItsFont) {
    t.app.Settings.SymbolListFile = Text(kRtf);
    control.SetSelection(0, -1);
    control.SetFontName(u"Arial");
    control.SetSelStart(1);
    Open();
    window->ThisTextCtrl.SetSelection(4, 3);
    Choose("mnuInsertSymbol");
    EXPECT_EQ(control.All(), u"atwob");
    EXPECT_EQ(FontAt(2), (FontSpec{u"Georgia", 11}));
    EXPECT_EQ(FontAt(0).name, u"Arial");
    KeyEvent enter{Key::Return};
    control.SetSelStart(0);
    window->ThisTextCtrl.KeyDown(enter);
    EXPECT_EQ(control.All(), u"twoatwob");
}

TEST_F(SymbolTablesTest, EachCharacterOfTheSelectionKeepsItsFont) {
    t.files.AddFile(
        Text(kRtf),
        "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Cambria;}}\\f0 one\\f1 two\\par\\f0 three\\f1 four}");
    t.app.Settings.SymbolListFile = Text(kRtf);
    Open();
    window->ThisTextCtrl.SetSelection(2, 12);
    Choose("mnuInsertSymbol");
    EXPECT_EQ(control.All(), u"aetwo\r\nthreefb");
    EXPECT_EQ(FontAt(1).name, u"Arial");
    EXPECT_EQ(FontAt(2).name, u"Cambria");
    EXPECT_EQ(FontAt(4).name, u"Cambria");
    EXPECT_EQ(FontAt(7).name, u"Arial");
    EXPECT_EQ(FontAt(11).name, u"Arial");
    EXPECT_EQ(FontAt(12).name, u"Cambria");
    EXPECT_EQ(FontAt(13), (FontSpec{u"Georgia", 11}));
    EXPECT_TRUE(control.Undo());
    EXPECT_EQ(control.All(), u"ab");
}

TEST_F(SymbolTablesTest, ASelectedLineEndIsCopiedToo) {
    t.files.AddFile(Text(kRtf), "{\\rtf1 one\\par two}");
    t.app.Settings.SymbolListFile = Text(kRtf);
    Open();
    window->ThisTextCtrl.SetSelection(3, 2);
    Choose("mnuInsertSymbol");
    EXPECT_EQ(control.All(), u"a\r\nb");
}

TEST_F(SymbolTablesTest, NothingIsInsertedWithoutATarget) {
    t.app.Settings.SymbolListFile = Text(kRtf);
    frmSymbolTables untargeted(t.app, nullptr);
    untargeted.EnsureLoaded();
    untargeted.ThisTextCtrl.SetSelection(0, -1);
    untargeted.OfficeMenu1.Choose("mnuInsertSymbol");
    EXPECT_EQ(control.All(), u"ab");
}

TEST_F(SymbolTablesTest, NothingIsInsertedWithoutASelection) {
    t.app.Settings.SymbolListFile = Text(kRtf);
    Open();
    Choose("mnuInsertSymbol");
    EXPECT_EQ(control.All(), u"ab");
}

TEST_F(SymbolTablesTest, TheZoomGoesInStepsAndStopsAtTheEnds) {
    Open();
    EXPECT_EQ(Zoom(), 100);
    Choose("mnuZoomIn");
    EXPECT_EQ(Zoom(), 125);
    EXPECT_EQ(t.app.Settings.SymbolCellSize, 125);
    for (int step = 0; step < 20; ++step)
        Choose("mnuZoomIn");
    EXPECT_EQ(Zoom(), 375);
    EXPECT_EQ(Open().ThisTextCtrl.ZoomFactor, 375);
    for (int step = 0; step < 20; ++step)
        Choose("mnuZoomOut");
    EXPECT_EQ(Zoom(), 25);
}

TEST_F(SymbolTablesTest, AZoomThatNobodyCanSetIsTheUsualOne) {
    for (const int zoom : {-1, 0, 24, 376}) {
        t.app.Settings.SymbolCellSize = static_cast<std::int16_t>(zoom);
        EXPECT_EQ(Open().ThisTextCtrl.ZoomFactor, 100) << zoom;
    }
}

TEST_F(SymbolTablesTest, TheInfoTellsTheSize) {
    Open();
    Choose("mnuInfo");
    t.files.AddFile(u"C:\\big.txt", std::string(1234567, 'x'));
    t.app.Settings.SymbolListFile = u"C:\\big.txt";
    t.user.Answer({u"File:  C:\\big.txt\r\nSize:  1,234,567 bytes", MessageIcon::Information}, Answer::Ok);
    Choose("mnuInfo");
}

TEST_F(SymbolTablesTest, TheWindowGoesToTheMiddleOfTheScreen) {
    t.user.On<frmSymbolTables>([this](frmSymbolTables& shown) {
        shown.Left = Twips{0};
        shown.Width = Twips{4000};
        shown.Height = Twips{2000};
        shown.OfficeMenu1.Choose("mnuCentreScreen");
        const Rect work = t.screen.WorkArea();
        EXPECT_EQ(shown.Left.Get() - work.left, (work.width.Number() - 4000) / 2);
        EXPECT_EQ(shown.Top.Get() - work.top, (work.height.Number() - 2000) / 2);
        shown.OfficeMenu1.Choose("mnuExit");
    });
    ShowSymbolTables(t.app, &control);
}

TEST_F(SymbolTablesTest, KeepsItsPlaceAndClosesWithEsc) {
    t.app.Settings.SymbolsLeft = 1000;
    t.app.Settings.SymbolsTop = 2000;
    t.app.Settings.SymbolsWidth = 8000;
    t.app.Settings.SymbolsHeight = 7000;
    t.user.On<frmSymbolTables>([](frmSymbolTables& shown) {
        EXPECT_EQ(shown.Left.Get(), Twips{1000});
        EXPECT_EQ(shown.Top.Get(), Twips{2000});
        EXPECT_EQ(shown.Width.Get(), Twips{8000});
        EXPECT_EQ(shown.Height.Get(), Twips{7000});
        shown.Left = Twips{1500};
        shown.Top = Twips{1600};
        shown.Width = Twips{8100};
        shown.Height = Twips{7100};
        KeyEvent escape{Key::Escape};
        shown.KeyDown(escape);
    });
    ShowSymbolTables(t.app, &control);
    EXPECT_EQ(t.app.Settings.SymbolsLeft, 1500);
    EXPECT_EQ(t.app.Settings.SymbolsTop, 1600);
    EXPECT_EQ(t.app.Settings.SymbolsWidth, 8100);
    EXPECT_EQ(t.app.Settings.SymbolsHeight, 7100);
}

} // namespace
} // namespace korvane
