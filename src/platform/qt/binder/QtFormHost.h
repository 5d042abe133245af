#pragma once

#include "controls/FormHost.h"
#include "platform/qt/base/PageSource.h"
#include "platform/qt/binder/FormBinder.h"
#include "platform/qt/binder/FormEntry.h"

#include <QEventLoop>
#include <memory>
#include <span>
#include <vector>

namespace korvane {

/// Shows windows as widgets. A window's look is made when it is shown first and goes when it closes.
class QtFormHost : public FormHost, private PageSource {
public:
    /// The windows that can be shown; the entries outlive the host.
    explicit QtFormHost(std::span<const FormEntry> forms);
    ~QtFormHost() override;

    void RunModal(Form& form) override;
    void Show(Form& form) override;
    void Hide(Form& form) override;
    void PopUp(Menu& menu) override;
    void Raise(Form& form) override;

    /// Lets the program run until the window has closed.
    void RunUntilClosed(const Form& form);
    /// The widget of a window that is shown; nullptr for any other.
    QWidget* WidgetOf(const Form& form) const;

private:
    struct Shown {
        const Form* form = nullptr;
        QPointer<QWidget> window;
        std::unique_ptr<FormBinder> binder;
        /// Runs while somebody waits for the window to close.
        QEventLoop* loop = nullptr;
    };

    QWidget* PageOf(Form& form) override;
    void Release(Form& form) override { Hide(form); }
    /// nullptr when the window has no look.
    QWidget* Bind(Form& form);
    std::unique_ptr<QWidget> MakeLook(const Form& form) const;
    void Bring(Form& form, QWidget& window);
    Shown* Find(const Form& form);
    /// The window that a new dialog stands over; nullptr when none is there.
    QWidget* Opener() const;

    std::span<const FormEntry> forms_;
    /// In the order in which they came up.
    std::vector<Shown> shown_;
};

} // namespace korvane
