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

/// A text box of several lines: CR LF in the control, LF in the widget, which shows the start alone of a very
/// long text that is locked.
class LinesAdaptor : public AdaptorOf<TextBox, QPlainTextEdit> {
public:
    LinesAdaptor(TextBox& box, QPlainTextEdit& widget);

protected:
    void Write(Aspect aspect) override;

private:
    void ReadText();
    /// `text` is what the widget holds, which the control may not yet know.
    void ReadSelection(TextView text);
    void WriteLocked();
    void WriteText();
    void WriteSelection();
    bool reading_ = false;
    bool writing_ = false;
};

} // namespace korvane
