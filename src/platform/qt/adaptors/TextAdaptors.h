#pragma once

#include "controls/TextBox.h"
#include "platform/qt/base/ControlAdaptor.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace korvane {

/// A text box of one line.
class LineAdaptor : public AdaptorOf<TextBox, QLineEdit> {
public:
    LineAdaptor(TextBox& box, QLineEdit& widget);

protected:
    void Write(Aspect aspect) override;

private:
    void ReadText(const QString& text);
    void ReadSelection();
    void WriteSelection();
    bool reading_ = false;
    bool writing_ = false;
};

/// A text box of several lines. The control has CR LF as line ends and the widget has LF. Of a very long
/// locked text the widget shows only the start.
class LinesAdaptor : public AdaptorOf<TextBox, QPlainTextEdit> {
public:
    LinesAdaptor(TextBox& box, QPlainTextEdit& widget);

protected:
    void Write(Aspect aspect) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ReadText();
    /// `text` is the text in the widget, which the control may not know yet.
    void ReadSelection(TextView text);
    void WriteLocked();
    void WriteText();
    void WriteSelection();
    bool reading_ = false;
    bool writing_ = false;
};

} // namespace korvane
