#pragma once

#include "controls/views/TabStrip.h"
#include "platform/qt/base/ControlAdaptor.h"
#include "platform/qt/base/PageSource.h"
#include "platform/qt/tabs/TabPages.h"

#include <vector>

namespace korvane {

class TabStripAdaptor : public AdaptorOf<TabStrip, TabPages> {
public:
    /// `pages` must outlive the adaptor.
    TabStripAdaptor(TabStrip& strip, TabPages& widget, PageSource& pages);

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;

private:
    void WriteTabs();
    void AddTab(Form& child);
    void ShowActive();
    void HoldNotes();
    void WriteNotes();
    void WriteStatus();
    void TakeKeyboard();
    void TabClicked(int index);
    void CloseClicked(int index);
    void ContextClicked(const QPoint& place);
    void StepBy(int tabs);

    PageSource& pages_;
    /// The children that have a tab, in the order of the tabs.
    std::vector<Form*> shown_;
    bool writing_ = false;
    /// Whether notes and status are going to be written.
    bool told_ = false;
    /// Whether the strip has been written for the first time.
    bool tied_ = false;
};

} // namespace korvane
