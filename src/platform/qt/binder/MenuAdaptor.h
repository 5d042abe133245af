#pragma once

#include "controls/Menu.h"
#include "platform/qt/base/ControlAdaptor.h"

#include <QMenu>
#include <QMenuBar>
#include <map>
#include <memory>
#include <string>

namespace korvane {

/// A menu bar. Its keys belong to it wherever in its window the keyboard is: a field that knows one of them
/// too doesn't get it.
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
    /// Keeps the bar's keys from the fields of its window.
    std::unique_ptr<QObject> keyKeeper_;
};

/// Fills `popup` with the menu's entries; each chosen one goes to the menu.
void FillPopup(QMenu& popup, Menu& menu);

} // namespace korvane
