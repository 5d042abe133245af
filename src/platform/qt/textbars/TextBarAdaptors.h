#pragma once

#include "controls/text/TextBars.h"
#include "platform/qt/base/ControlAdaptor.h"
#include "platform/qt/textbars/TextButtonBarView.h"
#include "platform/qt/textbars/TextRulerView.h"

#include <QLabel>

namespace korvane {

/// The widget in the same window that shows the text control; nullptr if there is none.
QtTextView* ViewOf(const TextControl* control, const QWidget& beside);

class TextButtonBarAdaptor : public AdaptorOf<TextButtonBar, TextButtonBarView> {
public:
    using AdaptorOf::AdaptorOf;

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;
};

class TextRulerAdaptor : public AdaptorOf<TextRuler, TextRulerView> {
public:
    TextRulerAdaptor(TextRuler& ruler, TextRulerView& widget);

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;
};

/// Shows the page, the line, the column and the zoom of a text.
class TextStatusAdaptor : public AdaptorOf<TextStatusBar, QLabel> {
public:
    using AdaptorOf::AdaptorOf;

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;

private:
    void ShowSoon();
    void Show();

    QPointer<QtTextView> view_;
    bool asked_ = false;
};

/// A line over a text.
class HairLineAdaptor : public AdaptorOf<HairLine, QFrame> {
public:
    HairLineAdaptor(HairLine& line, QFrame& widget);

protected:
    void Write(Aspect aspect) override;

private:
    void Put();
};

} // namespace korvane
