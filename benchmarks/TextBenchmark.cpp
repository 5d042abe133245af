// A text of a megabyte and a large table in the text view, each step until it is painted. On a display of its
// own.

#include "Office.h"
#include "Times.h"
#include "Xvfb.h"
#include "controls/Form.h"
#include "controls/FormHost.h"
#include "controls/text/TextControl.h"
#include "document/model/Builder.h"
#include "document/rtf/Rtf.h"
#include "platform/qt/text/QtTextView.h"
#include "platform/qt/text/TextControlAdaptor.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QKeyEvent>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace korvane::bench {

namespace {

constexpr int kDefaultRounds = 7;
constexpr int kParagraphs = 20'000;
constexpr int kKeys = 50;
constexpr int kRows = 5'000;
constexpr int kColumns = 24;
constexpr int kRepaints = 20;

/// A megabyte of text whose paragraphs have three runs of different looks each.
doc::Document Letter() {
    doc::Builder builder({});
    doc::CharFormat bold;
    bold.bold = true;
    for (int i = 0; i < kParagraphs; ++i) {
        builder.SetFormat({});
        builder.AddAscii("This is a part of a letter, ");
        builder.SetFormat(bold);
        builder.AddAscii("and this");
        builder.SetFormat({});
        builder.AddAscii(" goes on a bit. ");
        builder.EndParagraph({});
    }
    return builder.Finish({});
}

/// The letter, justified, in writings of several directions.
doc::Document JustifiedLetter() {
    doc::Builder builder({});
    doc::ParaFormat justified;
    justified.alignment = doc::Alignment::Justified;
    for (int i = 0; i < kParagraphs / 10; ++i) {
        for (const TextView part :
             {u"This is a part of a letter. ", u"\u042d\u0442\u043e \u0447\u0430\u0441\u0442\u044c. ",
              u"\u0647\u0630\u0627 \u062c\u0632\u0621 \u0645\u0646 \u0627\u0644\u0646\u0635. "}) {
            for (int again = 0; again < 2; ++again)
                builder.Add(part);
            builder.EndParagraph(justified);
        }
    }
    return builder.Finish({});
}

doc::Document LargeTable() {
    doc::Document document;
    document.paragraphs.clear();
    doc::Table& table = document.tables[1];
    doc::CellFormat cell;
    cell.width = 900;
    cell.border.fill(15);
    table.rows.assign(kRows, doc::TableRow{std::vector<doc::CellFormat>(kColumns, cell)});
    for (doc::Index row = 0; row < kRows; ++row) {
        for (doc::Index column = 0; column < kColumns; ++column) {
            doc::Paragraph& paragraph = document.paragraphs.emplace_back();
            paragraph.text = u"cell";
            paragraph.runs = {{4}};
            paragraph.cell = {1, row, column};
        }
    }
    document.paragraphs.emplace_back();
    return document;
}

/// The window of the control isn't shown, only its text is.
class NoHost final : public FormHost {
public:
    void RunModal(Form&) override {}
    void Show(Form&) override {}
    void Hide(Form&) override {}
    void PopUp(Menu&) override {}
    void Raise(Form&) override {}
};

class Bench {
public:
    Bench() {
        view.resize(900, 700);
        adaptor = new TextControlAdaptor(control, view);
        adaptor->WriteAll();
        view.show();
        view.setFocus();
        QCoreApplication::processEvents();
    }
    ~Bench() { adaptor->Detach(); }

    /// Paints what is out of date.
    void Paint() {
        view.ShowText();
        view.viewport()->repaint();
    }
    void Key(int key, const QString& text) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&view, &event);
        Paint();
    }
    /// Lets the rest of the text be laid out, which goes on while the user reads.
    void LayOut() {
        view.Mirror().Current().documentLayout()->documentSize();
        QCoreApplication::processEvents();
        Paint();
    }

    NoHost host;
    Form form{host, "Form", u""};
    TextControl control{form, "control"};
    QtTextView view;
    TextControlAdaptor* adaptor = nullptr;
};

void MeasureRepaints(const doc::Document& letter, const std::string& kind) {
    Bench bench;
    bench.control.SetWhole(letter);
    for (const int zoom : kZoomSteps) {
        bench.control.ZoomFactor = zoom;
        bench.LayOut();
        Times repaint;
        for (int i = 0; i < kRepaints; ++i)
            repaint.Add([&] { bench.view.viewport()->repaint(); });
        Print(("a repaint at " + std::to_string(zoom) + " %" + kind).c_str(), repaint);
    }
}

void MeasureText(int rounds) {
    const doc::Document letter = Letter();
    const std::string rtf = doc::WriteRtf(letter);
    Times shown;
    Times mirrored;
    Times key;
    Times pagesKey;
    for (int round = 0; round < rounds; ++round) {
        Bench bench;
        shown.Add([&] {
            bench.control.SetWhole(doc::ReadRtf(rtf).document);
            bench.Paint();
        });
        doc::MemoryTextStore store;
        store.Reset(letter);
        mirrored.Add([&] { TextMirror mirror(store); });
        bench.LayOut();
        bench.control.SetSelStart(10);
        bench.Paint();
        for (int i = 0; i < kKeys; ++i)
            key.Add([&] { bench.Key(Qt::Key_X, "x"); });
        bench.control.ViewMode = TextControl::kPages;
        bench.LayOut();
        for (int i = 0; i < kKeys; ++i)
            pagesKey.Add([&] { bench.Key(Qt::Key_X, "x"); });
    }
    Print("the document of 1 MB made into Qt's", mirrored);
    Print("RTF of 20,000 paragraphs, 1 MB of text, read and first painted", shown);
    Print("a key at its top, with the repaint", key);
    Print("the same in the view of pages", pagesKey);
    MeasureRepaints(letter, "");
    MeasureRepaints(JustifiedLetter(), ", justified, of three writings");
}

/// LibreOffice starts for each file. What it needs for an empty one is no part of the reading.
void MeasureOffice(int rounds) {
    Office office;
    Print("LibreOffice from start to end, without a window, an empty RTF to plain text",
          office.ReadAsText("{\\rtf1 }", rounds));
    Print("LibreOffice: the same with the RTF of 1 MB", office.ReadAsText(doc::WriteRtf(Letter()), rounds));
}

void MeasureTable(int rounds) {
    Times shown;
    Times key;
    for (int round = 0; round < rounds; ++round) {
        Bench bench;
        doc::Document table = LargeTable();
        shown.Add([&] {
            bench.control.SetWhole(std::move(table));
            bench.Paint();
        });
        for (int i = 0; i < kKeys / 10; ++i)
            key.Add([&] { bench.Key(Qt::Key_X, "x"); });
    }
    Print("a table of 5,000 rows of 24 columns, its first screen", shown);
    Print("a key in its first cell", key);
}

} // namespace

} // namespace korvane::bench

int main(int argc, char** argv) {
    using namespace korvane::bench;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : kDefaultRounds;
    if (rounds < 1) return 2;
    const Xvfb display;
    const QApplication application(argc, argv);
    PrintHead();
    MeasureText(rounds);
    MeasureTable(rounds);
    if (Office::Installed()) MeasureOffice(rounds);
    return 0;
}
