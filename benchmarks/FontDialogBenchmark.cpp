// The font dialog and the table of characters with 500 fonts, each until it is painted, against a dialog with
// nothing in it. On a display of its own.

#include "PaintWatch.h"
#include "Times.h"
#include "Xvfb.h"
#include "context/App.h"
#include "context/exchange/TextWindowState.h"
#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "grid/Grid.h"
#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/services/QtFonts.h"
#include "platform/qt/services/QtScreen.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"
#include "text/formats/frmQuickNameSize.h"
#include "text/insert/InsertTarget.h"
#include "text/insert/frmASCIIBox.h"
#include "text/window/frm_RTF_HTM.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFontDatabase>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

namespace korvane::bench {

namespace {

constexpr int kDefaultRounds = 15;
constexpr int kFonts = 500;

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

/// A font of the system under 500 names of the same length, so that nothing else of the file changes.
class ManyFonts {
public:
    ManyFonts() {
        const QByteArray font = Source();
        for (int number = 0; number < kFonts; ++number)
            Add(font, number);
        std::printf("%lld fonts are installed\n", static_cast<long long>(QFontDatabase::families().size()));
    }

private:
    static constexpr char kFile[] = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono-Oblique.ttf";

    static QByteArray Utf16(const QString& text) {
        QByteArray bytes;
        for (const QChar character : text) {
            bytes.append(static_cast<char>(character.unicode() >> 8));
            bytes.append(static_cast<char>(character.unicode() & 0xFF));
        }
        return bytes;
    }
    static QByteArray Source() {
        QFile file(kFile);
        if (!file.open(QIODevice::ReadOnly)) Fail("the font DejaVu Sans Mono isn't installed");
        return file.readAll();
    }
    void Add(QByteArray font, int number) {
        const QString name = QStringLiteral("Bench Font %1").arg(number, 5, 10, QLatin1Char('0'));
        font.replace(Utf16(QStringLiteral("DejaVu Sans Mono")), Utf16(name));
        font.replace(QByteArrayLiteral("DejaVu Sans Mono"), name.toLatin1());
        if (QFontDatabase::addApplicationFontFromData(font) < 0) Fail("a font isn't taken");
    }
};

struct Stage {
    QWidget& WidgetOf(Form& form) { return *forms.WidgetOf(form); }

    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Windows, clock};
    ScriptedMessageBoxes messages;
    MemoryClipboard clipboard;
    QtScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    QtFonts fonts;
    QtFormHost forms{KorvaneForms()};
    App app{{files,
             messages,
             clipboard,
             clock,
             screen,
             shell,
             instance,
             forms,
             [] { return nullptr; },
             CodePage::Windows1252(),
             nullptr,
             {},
             nullptr,
             nullptr,
             &fonts}};
    Form owner{forms, "owner", u""};
    TextControl text{owner, "text"};
    ControlTarget target{text};
};

/// A window, and how long its openings took.
struct Contender {
    const char* what;
    QtFormHost& forms;
    std::function<std::unique_ptr<Form>()> make;
    /// The window whose look was made in a free moment before the opening.
    const char* ahead = nullptr;
    Times times{};

    /// Opens the window and paints it; closing it isn't measured.
    void Open() {
        std::unique_ptr<Form> form;
        if (ahead != nullptr) forms.MakeAhead(ahead);
        times.Add([&] {
            form = make();
            form->Show();
            PaintWatch(*forms.WidgetOf(*form)).Wait();
        });
        form->Close();
        form.reset();
        DeleteClosed();
    }
};

/// A dialog with nothing in it, of the size of the others.
constexpr FormEntry kEmptyForms[] = {{"frmEmpty", [] {
                                          auto dialog = std::make_unique<QDialog>();
                                          dialog->resize(620, 520);
                                          return std::unique_ptr<QWidget>(std::move(dialog));
                                      }}};

/// The window with its controls and nothing in them.
class UnfilledTable final : public frmASCIIBox {
public:
    using frmASCIIBox::frmASCIIBox;
    void Load() override {}
};

void MeasureScrolling(int rounds, Stage& stage) {
    Times times;
    for (int round = 0; round < rounds; ++round) {
        frmQuickNameSize form(stage.app);
        form.Show();
        Settle();
        times.Add([&] {
            form.lstName.SetListIndex(form.lstName.ListCount() - 1);
            Settle();
            stage.WidgetOf(form).repaint();
        });
        form.Close();
        Settle();
    }
    Print("the font dialog scrolled to the last font", times);
}

} // namespace

} // namespace korvane::bench

int main(int argc, char** argv) {
    using namespace korvane;
    using namespace korvane::bench;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : kDefaultRounds;
    if (rounds < 1) return 2;
    const Xvfb display;
    const QApplication application(argc, argv);
    QApplication::setStyle(new CalmStyle);
    const ManyFonts fonts;
    Stage stage;
    // All windows have the size of the empty one.
    stage.app.Settings.AsciiWidth = 620 * kTwipsPerPixel;
    stage.app.Settings.AsciiHeight = 520 * kTwipsPerPixel;
    stage.app.Settings.RtfWidth = 620 * kTwipsPerPixel;
    stage.app.Settings.RtfHeight = 520 * kTwipsPerPixel;
    stage.app.Exchange<TextWindowState>().TextWindowUntitled = 1;
    QtFormHost emptyForms{kEmptyForms};
    Contender contenders[] = {
        {"an empty dialog", emptyForms, [&] { return std::make_unique<Form>(emptyForms, "frmEmpty", u""); }},
        {"the font dialog", stage.forms, [&] { return std::make_unique<frmQuickNameSize>(stage.app); }},
        {"the table of characters before it is filled", stage.forms,
         [&] { return std::make_unique<UnfilledTable>(stage.app, &stage.target); }},
        {"the table of characters", stage.forms,
         [&] { return std::make_unique<frmASCIIBox>(stage.app, &stage.target); }},
        {"the text window without a document", stage.forms,
         [&] { return std::make_unique<frm_RTF_HTM>(stage.app); }},
        {"the same with its look made ahead", stage.forms,
         [&] { return std::make_unique<frm_RTF_HTM>(stage.app); }, "frm_RTF_HTM"},
    };
    Contender first{"the font dialog, first opening", stage.forms, contenders[1].make};
    PrintHead();
    first.Open();
    Print(first.what, first.times);
    // By turns, so that all of them feel the same load of the machine.
    for (int round = 0; round < rounds; ++round) {
        for (Contender& contender : contenders)
            contender.Open();
    }
    for (const Contender& contender : contenders)
        Print(contender.what, contender.times);
    MeasureScrolling(rounds, stage);
    return 0;
}
