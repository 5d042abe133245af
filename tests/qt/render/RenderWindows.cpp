// render_windows DIR [--dark] draws every window of the program into two pictures, one in its own size and
// one in its smallest. It also draws the kinds of message boxes, the styles of the tab strip, and the icons.

#include "context/StandardMessages.h"
#include "controls/views/TabStyles.h"
#include "extras/web/frmWebList.h"
#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/dialogs/QtMessageBoxes.h"
#include "platform/qt/look/Icons.h"
#include "platform/qt/look/Palettes.h"
#include "platform/qt/tabs/TabPages.h"
#include "render/Stage.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPainter>
#include <QTimer>

namespace korvane {
namespace {

class Album {
public:
    explicit Album(QDir folder) : folder_(std::move(folder)) {}

    void Put(const QString& name, const QPixmap& picture) {
        const QString path = folder_.filePath(name + ".png");
        if (picture.save(path)) return;
        qWarning("Cannot write %s", qPrintable(path));
        complete_ = false;
    }
    bool Complete() const { return complete_; }

private:
    QDir folder_;
    bool complete_ = true;
};

/// Draws the window in its own size and in its smallest.
void PutWindow(Album& album, const QString& name, QWidget& window) {
    Stage::Settle();
    album.Put(name, window.grab());
    window.resize(window.minimumSizeHint().expandedTo(window.minimumSize()));
    Stage::Settle();
    album.Put(name + "-least", window.grab());
}

/// The stage has shown the main window and its tab already, and there is only one of each.
bool StandsAlready(const Window& window, Stage& stage) {
    return window.name == stage.Main().Name() || window.name == stage.All().child.Name();
}

void RenderDialogs(Album& album, Stage& stage) {
    for (const Window& window : AllWindows()) {
        if (StandsAlready(window, stage)) continue;
        const auto form = window.make(stage.All());
        form->EnsureLoaded();
        form->Show();
        form->Activate();
        PutWindow(album, QString::fromStdString(form->Name()), *stage.Host().WidgetOf(*form));
        // It isn't closed, because the lock would wait for its password.
        stage.Host().Hide(*form);
        Stage::Settle();
    }
}

/// The groups, and the fields of a row, which a user sees only after a command.
void RenderWebsites(Album& album, Stage& stage) {
    frmWebList form(stage.All().app, stage.Main());
    form.Show();
    QWidget& window = *stage.Host().WidgetOf(form);
    const auto put = [&](const QString& name, const char* command) {
        form.OfficeMenu1.Choose(command);
        Stage::Settle();
        album.Put(name, window.grab());
    };
    put("frmWebList-fields", "mnuEditItem");
    put("frmWebList-groups", "mnuGroupWin");
    form.lstGroup.Select(0);
    put("frmWebList-group-fields", "mnuEditItem");
    form.Close();
    Stage::Settle();
}

struct Box {
    const char* name;
    Message message;
};

const Box kBoxes[] = {
    {"box-none", {u"Cell contents copied to text.\r\n"}},
    {"box-information",
     {u"Databases saved to disk: \r\n\r\nBooks.tbx\r\nDiary.tbx\r\n", MessageIcon::Information}},
    {"box-question",
     {u"The text database has been changed.\r\n\r\nC:\\data\\Books.tbx\r\n\r\nDo you want to save the "
      u"changes?\r\n",
      MessageIcon::Question, MessageButtons::YesNoCancel}},
    {"box-yes-no", {u"Unload file without saving?", MessageIcon::Question, MessageButtons::YesNo, 2}},
    {"box-exclamation",
     {u"Not enough space to move window as requested.\r\n\r\nMinimum required: 5,000 pixels.",
      MessageIcon::Exclamation}},
    {"box-stop",
     {u"The following file has already been loaded: \r\n\r\n\tC:\\data\\Books.tbx\r\n", MessageIcon::Stop}},
};

void RenderBoxes(Album& album) {
    for (const Box& box : kBoxes) {
        QTimer::singleShot(0, [&album, &box] {
            QWidget* shown = QApplication::activeModalWidget();
            if (shown == nullptr) return;
            album.Put(box.name, shown->grab());
            shown->close();
        });
        QtMessageBoxes().Show(box.message);
    }
}

void RenderStyles(Album& album, Stage& stage) {
    QWidget& window = *stage.Host().WidgetOf(stage.Main());
    QTabBar& tabs = window.findChild<TabPages*>()->Tabs();
    constexpr int kGap = 12;
    constexpr int kNumberWidth = 40;
    const int step = tabs.height() + kGap;
    QPixmap sheet(kNumberWidth + tabs.width(), step * static_cast<int>(TabStyles().size()));
    sheet.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&sheet);
    painter.setPen(QApplication::palette().color(QPalette::WindowText));
    int top = 0;
    for (const TabStyle& style : TabStyles()) {
        stage.Main().MDITabs1.Style = style.number;
        Stage::Settle();
        painter.drawText(QRect(0, top, kNumberWidth, tabs.height()), Qt::AlignCenter,
                         QString::number(style.number));
        painter.drawPixmap(kNumberWidth, top, tabs.grab());
        top += step;
    }
    painter.end();
    album.Put("tab-styles", sheet);
}

void RenderIcons(Album& album) {
    const QStringList files = QDir(":/icons").entryList({"*.svg"});
    constexpr int kSizes[] = {16, 24, 32, 48, 64};
    constexpr int kRow = 72;
    constexpr int kCell = 460;
    constexpr int kColumns = 3;
    const int rows = (static_cast<int>(files.size()) + kColumns - 1) / kColumns;
    QPixmap sheet(kCell * kColumns, rows * kRow);
    sheet.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&sheet);
    painter.setPen(QApplication::palette().color(QPalette::WindowText));
    for (int index = 0; index < files.size(); ++index) {
        const QString name = files.at(index).chopped(4);
        const QRect cell(index / rows * kCell, index % rows * kRow, kCell, kRow);
        int left = cell.left();
        for (const int size : kSizes) {
            TintedIcon(name).paint(&painter, left, cell.top() + (kRow - size) / 2, size, size);
            left += size + 8;
        }
        painter.drawText(QRect(left, cell.top(), kCell, kRow), Qt::AlignVCenter, name);
    }
    painter.end();
    album.Put("icons", sheet);
}

int Render(const QString& folder) {
    if (!QDir().mkpath(folder)) {
        qWarning("Cannot make %s", qPrintable(folder));
        return 1;
    }
    Album album{QDir(folder)};
    Stage stage;
    RenderStyles(album, stage);
    stage.Main().MDITabs1.Style = 13;
    RenderDialogs(album, stage);
    RenderWebsites(album, stage);
    RenderBoxes(album);
    RenderIcons(album);
    QWidget& window = *stage.Host().WidgetOf(stage.Main());
    const QSize own = window.size();
    PutWindow(album, "frmMDIParent", window);
    window.resize(own);
    stage.Main().OfficeMenu1.Choose("mnuStyle11");
    Stage::Settle();
    album.Put("frmMDIParent-coloured", window.grab());
    return album.Complete() ? 0 : 1;
}

} // namespace
} // namespace korvane

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setStyle(new korvane::CalmStyle);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        qWarning("render_windows DIR [--dark]");
        return 2;
    }
    if (arguments.value(2) == "--dark") QApplication::setPalette(korvane::DarkPalette());
    return korvane::Render(arguments.at(1));
}
