#pragma once

#include "common/settings/Settings.h"
#include "common/text/CodePage.h"
#include "common/text/Text.h"
#include "platform/UserLocale.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <typeindex>
#include <typeinfo>
#include <utility>

namespace korvane {

class Clipboard;
class Clock;
class FileSystem;
class FileTypes;
class FormHost;
class Grid;
class InstalledFonts;
class InstanceChannel;
class MessageBoxes;
class Screen;
class Shell;
class Spreadsheet;
class SystemFolders;

/// What every window reaches: the settings, the platform, the ports and the values that windows exchange. A
/// port and a group of such values are found by their type, so that a window names only those that it uses.
/// There is one App for a process; each test makes its own.
class App {
public:
    /// The platform. Everything outlives the App.
    struct Platform {
        FileSystem& files;
        MessageBoxes& messages;
        Clipboard& clipboard;
        Clock& clock;
        Screen& screen;
        Shell& shell;
        InstanceChannel& instance;
        FormHost& forms;
        std::function<std::unique_ptr<Grid>()> makeGrid;
        /// The code page of all files.
        CodePage codePage = CodePage::Windows1252();
        /// Optional.
        const SystemFolders* folders = nullptr;
        /// Starts a spreadsheet application; nullptr when it can't be started. Optional.
        std::function<std::unique_ptr<Spreadsheet>()> makeSpreadsheet{};
        /// Optional: without it, dates are written as on every system.
        const UserLocale* locale = nullptr;
        /// Optional: without it, lists of files show no types and pictures.
        FileTypes* fileTypes = nullptr;
        /// Optional: without it, no font counts as installed.
        const InstalledFonts* fonts = nullptr;
    };

    explicit App(Platform platform);
    ~App();
    App(const App&) = delete;
    App& operator=(const App&) = delete;

    FileSystem& Files() const { return platform_.files; }
    MessageBoxes& Messages() const { return platform_.messages; }
    korvane::Clipboard& Clipboard() const { return platform_.clipboard; }
    korvane::Clock& Clock() const { return platform_.clock; }
    korvane::Screen& Screen() const { return platform_.screen; }
    korvane::Shell& Shell() const { return platform_.shell; }
    InstanceChannel& Instance() const { return platform_.instance; }
    FormHost& Forms() const { return platform_.forms; }
    std::unique_ptr<Grid> MakeGrid() const;
    /// nullptr where there is no spreadsheet application.
    std::unique_ptr<Spreadsheet> MakeSpreadsheet() const;
    const CodePage& Page() const { return platform_.codePage; }
    /// nullptr where the system's folders aren't known.
    const SystemFolders* Folders() const { return platform_.folders; }

    /// nullptr where the desktop's types of files aren't known.
    korvane::FileTypes* FileTypes() const { return platform_.fileTypes; }
    /// nullptr where the installed fonts aren't known.
    const InstalledFonts* Fonts() const { return platform_.fonts; }

    const UserLocale& Locale() const {
        return platform_.locale == nullptr ? sameEverywhere_ : *platform_.locale;
    }

    korvane::Settings Settings;
    /// The outcome of the last modal window: 0 nothing or cancel, 1 done, others as the window says.
    std::int16_t DialogResult = 0;
    /// The object that answers the questions of a port (`context/ports`); nullptr when there is none, and
    /// then the step that asks has no effect.
    template <class PortT>
    PortT* Port() const {
        const auto found = ports_.find(typeid(PortT));
        return found == ports_.end() ? nullptr : static_cast<PortT*>(found->second);
    }
    /// Ports are set while the program is put together. The object that answers outlives the App, or takes
    /// itself away again with nullptr.
    template <class PortT>
    void SetPort(PortT* answers) {
        ports_[typeid(PortT)] = answers;
    }

    /// The values of one conversation between windows (`context/exchange`), which live as long as the App.
    template <class ValuesT>
    ValuesT& Exchange() const {
        std::shared_ptr<void>& values = exchange_[typeid(ValuesT)];
        if (values == nullptr) values = std::make_shared<ValuesT>();
        return *static_cast<ValuesT*>(values.get());
    }

private:
    Platform platform_;
    std::map<std::type_index, void*> ports_;
    /// Made when it is first asked for.
    mutable std::map<std::type_index, std::shared_ptr<void>> exchange_;
    UserLocale sameEverywhere_;
};

} // namespace korvane
