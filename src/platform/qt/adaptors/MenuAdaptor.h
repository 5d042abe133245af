#pragma once

#include "controls/Menu.h"
#include "platform/qt/base/ControlAdaptor.h"

#include <QMenu>
#include <QMenuBar>
#include <map>
#include <memory>
#include <string>

namespace korvane {

/// A menu bar. Its keys work wherever the keyboard is in its window: a field that uses the same key doesn't
/// get it.
class MenuAdaptor : public AdaptorOf<Menu, QMenuBar> {
public:
    MenuAdaptor(Menu& menu, QMenuBar& bar);

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;

private:
    void Build();
    void WriteChecks();
    void WriteFont();

    std::map<std::string, QAction*, std::less<>> actions_;
    /// Stops the fields of the window from taking the keys of the bar.
    std::unique_ptr<QObject> keyKeeper_;
};

/// Fills `popup` with the menu's entries. Choosing one tells the menu.
void FillPopup(QMenu& popup, Menu& menu);

} // namespace korvane
