#pragma once

#include "QtSupport.h"
#include "controls/Form.h"
#include "controls/lists/ListBox.h"
#include "controls/lists/ListView.h"
#include "controls/lists/TreeView.h"
#include "platform/qt/binder/QtFormHost.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QListView>
#include <QTreeView>

namespace korvane::test {

/// A window with a list of every kind.
class frmLists : public Form {
public:
    explicit frmLists(FormHost& host) : Form(host, "frmLists", u"") {
        for (const TextView text : {u"one", u"two", u"three"}) {
            List1.AddItem(text);
            lstChecks.AddItem(text);
            lstPicks.AddItem(text);
            cboOne.AddItem(text);
        }
    }

    ListBox List1{*this, "List1"};
    ListBox lstChecks{*this, "lstChecks"};
    ListBox lstPicks{*this, "lstPicks"};
    ComboBox cboOne{*this, "cboOne"};
    ListView ListView1{*this, "ListView1", {{u"Name", Twips{3000}}, {u"Size", Twips{1500}}}};
    TreeView FileTree{*this, "FileTree"};
};

template <class WidgetT>
WidgetT& Add(QWidget& window, const char* name) {
    auto* widget = new WidgetT(&window);
    widget->setObjectName(name);
    widget->setAccessibleName(name);
    widget->resize(300, 120);
    return *widget;
}

inline std::unique_ptr<QWidget> MakeLists() {
    auto window = std::make_unique<QDialog>();
    window->resize(400, 300);
    Add<QListView>(*window, "List1");
    Add<QListView>(*window, "lstChecks").setProperty("checkBoxes", true);
    Add<QListView>(*window, "lstPicks").setSelectionMode(QAbstractItemView::ExtendedSelection);
    Add<QComboBox>(*window, "cboOne");
    Add<QTreeView>(*window, "ListView1");
    Add<QTreeView>(*window, "FileTree");
    return window;
}

inline constexpr FormEntry kListForms[] = {{"frmLists", MakeLists}};

class ListsFixture : public testing::Test {
protected:
    void SetUp() override {
        form.Show();
        Settle();
    }

    /// With what the program did last.
    template <class WidgetT>
    WidgetT& Widget(const char* name) {
        Settle();
        return *host.WidgetOf(form)->findChild<WidgetT*>(name);
    }
    /// The user clicks the line.
    void Click(QAbstractItemView& view, const QModelIndex& index, Qt::KeyboardModifiers modifiers = {}) {
        view.raise();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, view.visualRect(index).center());
        Settle();
    }
    void Key(QAbstractItemView& view, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        view.setFocus();
        QTest::keyClick(&view, key, modifiers);
        Settle();
    }

    /// The lines of the list, each with the texts of its columns one after the other.
    static QStringList Lines(const QAbstractItemView& view) {
        QStringList lines;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            QStringList line;
            for (int column = 0; column < view.model()->columnCount(); ++column)
                line << view.model()->index(row, column).data().toString();
            lines << line.join(" ").trimmed();
        }
        return lines;
    }
    static bool Chosen(const QAbstractItemView& view, int row) {
        return view.selectionModel()->isSelected(view.model()->index(row, 0));
    }
    /// The rows that the list shows as picked.
    static std::vector<int> ShownPicks(const QAbstractItemView& view) {
        std::vector<int> picks;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            if (Chosen(view, row)) picks.push_back(row);
        }
        return picks;
    }
    static bool IsTicked(const QAbstractItemView& view, int row) {
        return view.model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    static QImage ImageOf(const QModelIndex& index) {
        return index.data(Qt::DecorationRole).value<QIcon>().pixmap(16, 16).toImage();
    }

    QtFormHost host{kListForms};
    frmLists form{host};
};

} // namespace korvane::test
