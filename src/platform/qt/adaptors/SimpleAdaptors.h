#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Label.h"
#include "controls/Timer.h"
#include "controls/views/ProgressBar.h"
#include "controls/views/Slider.h"
#include "controls/views/WebView.h"
#include "platform/qt/base/ControlAdaptor.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>

namespace korvane {

class ButtonAdaptor : public AdaptorOf<CommandButton, QAbstractButton> {
public:
    ButtonAdaptor(CommandButton& button, QAbstractButton& widget);

protected:
    void Write(Aspect aspect) override;
};

/// A button of a tool bar. Its tool-tip is also its name in the menu of hidden buttons and for a screen
/// reader.
class ActionAdaptor : public AdaptorOf<CommandButton, QAction> {
public:
    ActionAdaptor(CommandButton& button, QAction& action);

protected:
    void Write(Aspect aspect) override;
};

class CheckBoxAdaptor : public AdaptorOf<CheckBox, QAbstractButton> {
public:
    CheckBoxAdaptor(CheckBox& box, QAbstractButton& widget);

protected:
    void Write(Aspect aspect) override;

private:
    void WriteValue();
};

/// The options of a group are beside each other in one widget. The arrow keys choose among them.
class OptionAdaptor : public AdaptorOf<OptionButton, QAbstractButton> {
public:
    OptionAdaptor(OptionButton& option, QAbstractButton& widget);

protected:
    void Write(Aspect aspect) override;

private:
    void WriteValue();
    void WriteTabStop();
};

/// A screen reader hears the accessible name of a label's look as the title of what the label shows.
class LabelAdaptor : public AdaptorOf<Label, QLabel> {
public:
    LabelAdaptor(Label& label, QLabel& widget);

protected:
    void Write(Aspect aspect) override;

private:
    void WriteCaption();

    QString title_;
};

class PanelAdaptor : public AdaptorOf<Panel, QWidget> {
public:
    using AdaptorOf::AdaptorOf;

protected:
    void Write(Aspect aspect) override;
};

/// The widgets in it show the page.
class WebViewAdaptor : public AdaptorOf<WebView, QWidget> {
public:
    using AdaptorOf::AdaptorOf;
};

class ProgressAdaptor : public AdaptorOf<ProgressBar, QProgressBar> {
public:
    using AdaptorOf::AdaptorOf;

protected:
    void Write(Aspect aspect) override;

private:
    /// A small bar shows hardly more steps, and the widget paints itself at each.
    static constexpr int kStepsOfBar = 100;

    /// Whether the bar looks different with its new value.
    bool IsSeen() const;
};

class SliderAdaptor : public AdaptorOf<Slider, QAbstractSlider> {
public:
    SliderAdaptor(Slider& slider, QAbstractSlider& widget);

protected:
    void Write(Aspect aspect) override;
};

class TimerAdaptor : public AdaptorOf<Timer, QTimer> {
public:
    TimerAdaptor(Timer& timer, QTimer& shown);

protected:
    void Write(Aspect aspect) override;
};

} // namespace korvane
