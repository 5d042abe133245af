#pragma once

#include "controls/FormHost.h"
#include "platform/qt/base/PageSource.h"
#include "platform/qt/binder/FormBinder.h"
#include "platform/qt/binder/FormEntry.h"

#include <QEventLoop>
#include <QTimer>
#include <map>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace korvane {

/// Shows windows as widgets. The look of a window is made when it is first shown and deleted when it closes.
/// A look with the property "madeAhead" is made again a moment after it was deleted, since such a window
/// opens often.
class QtFormHost : public FormHost, private PageSource {
public:
    /// `forms` are the windows that can be shown. They must outlive the host.
    explicit QtFormHost(std::span<const FormEntry> forms);
    ~QtFormHost() override;

    void RunModal(Form& form) override;
    void Show(Form& form) override;
    void Hide(Form& form) override;
    void PopUp(Menu& menu) override;
    void Raise(Form& form) override;
    bool ShowsModal() const override;

    /// Makes the look of a window now, for its next opening.
    void MakeAhead(std::string_view name);
    /// The same once the user has had a moment without waiting for anything.
    void MakeAheadSoon(std::string_view name);
    /// Whether a look is there for the next opening.
    bool IsMadeAhead(std::string_view name) const { return ahead_.contains(name); }

    /// Runs the event loop until the window is closed.
    void RunUntilClosed(const Form& form);
    /// The widget of a window that is shown, or nullptr for any other window.
    QWidget* WidgetOf(const Form& form) const;

private:
    struct Shown {
        const Form* form = nullptr;
        QPointer<QWidget> window;
        std::unique_ptr<FormBinder> binder;
        /// The event loop that waits for the window to close, if there is one.
        QEventLoop* loop = nullptr;
    };

    QWidget* PageOf(Form& form) override;
    void Release(Form& form) override { Hide(form); }
    /// Makes and connects the widget if the window isn't shown yet. nullptr when the window has no look.
    QWidget* Bind(Form& form);
    const FormEntry* EntryOf(std::string_view name) const;
    std::unique_ptr<QWidget> TakeLook(const Form& form);
    void Bring(Form& form, QWidget& window);
    Shown* Find(const Form& form);
    /// The modal windows and the box above the window of a form that is shown, the highest last.
    QWidgetList BlockersOf(const Form& form) const;
    /// The window over which a new dialog opens, or nullptr when there is none.
    QWidget* Opener() const;

    std::span<const FormEntry> forms_;
    /// Sorted by when they were shown, the oldest first.
    std::vector<Shown> shown_;
    /// The looks that nobody has shown yet. The names are those of the entries.
    std::map<std::string_view, std::unique_ptr<QWidget>> ahead_;
    std::set<std::string> wantedSoon_;
    QTimer soon_;
};

} // namespace korvane
