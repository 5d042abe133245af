#pragma once

#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "controls/TreeView.h"
#include "platform/qt/base/ControlAdaptor.h"

#include <QComboBox>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QTreeWidget>
#include <map>

namespace korvane {

/// The base of the adaptors of lists: however many items come one by one, the widget takes them in one go.
template <class ControlT, class WidgetT>
class ItemsAdaptor : public AdaptorOf<ControlT, WidgetT> {
public:
    using AdaptorOf<ControlT, WidgetT>::AdaptorOf;

protected:
    void Write(Aspect aspect) final {
        if (aspect == Aspect::Items) return Schedule();
        const bool marks = aspect == Aspect::Selection || aspect == Aspect::Value;
        if (marks && reading_) return;
        if (marks || aspect == Aspect::Focus) Flush();
        const QScopedValueRollback guard(writing_, true);
        if (aspect == Aspect::Selection) WriteSelection();
        if (aspect == Aspect::Value) WriteMarks();
        if (aspect == Aspect::Range) WriteShape();
        if (aspect == Aspect::Colours) WriteColours();
        AdaptorOf<ControlT, WidgetT>::Write(aspect);
    }

    virtual void WriteItems() = 0;
    virtual void WriteSelection() = 0;
    /// Check marks, picks, open branches.
    virtual void WriteMarks() {}
    /// Columns and the like.
    virtual void WriteShape() {}
    virtual void WriteColours() {}

    /// Whether a signal of the widget comes from the user.
    bool ByUser() const { return !writing_ && !stale_ && this->Attached(); }

    /// Lets `read` bring several things that the user changed at once to the control. The widget follows
    /// afterwards only, as the control knows but a part of them in between.
    template <class ReadT>
    void ReadFromUser(ReadT read) {
        if (!ByUser()) return;
        {
            const QScopedValueRollback guard(reading_, true);
            read();
        }
        if (!ByUser()) return;
        const QScopedValueRollback guard(writing_, true);
        WriteMarks();
        WriteSelection();
    }

private:
    void Schedule() {
        if (stale_) return;
        stale_ = true;
        QMetaObject::invokeMethod(
            this, [this] { Flush(); }, Qt::QueuedConnection);
    }

    void Flush() {
        if (!stale_ || !this->Attached()) return;
        stale_ = false;
        const QScopedValueRollback guard(writing_, true);
        WriteItems();
        WriteMarks();
        WriteSelection();
    }

    bool reading_ = false;
    bool writing_ = false;
    bool stale_ = false;
};

/// A list. With the property "checkBoxes" in its look its items have check marks; with a selection mode that
/// takes several they can be picked.
class ListBoxAdaptor : public ItemsAdaptor<ListBox, QListWidget> {
public:
    ListBoxAdaptor(ListBox& list, QListWidget& widget);

protected:
    void WriteItems() override;
    void WriteSelection() override;
    void WriteMarks() override;

private:
    bool TakesSeveral() const;
    void ReadCheck(const QListWidgetItem& item);
    void ReadPicks();

    bool checkable_;
};

class ComboBoxAdaptor : public ItemsAdaptor<ComboBox, QComboBox> {
public:
    ComboBoxAdaptor(ComboBox& list, QComboBox& widget);

protected:
    void WriteItems() override;
    void WriteSelection() override;
};

/// A list with columns. The property "rowImages" of its look names the icons that stand in front of the rows,
/// from the first image on.
class ListViewAdaptor : public ItemsAdaptor<ListView, QTreeWidget> {
public:
    ListViewAdaptor(ListView& list, QTreeWidget& widget);

protected:
    void WriteItems() override;
    void WriteSelection() override;
    void WriteMarks() override;
    void WriteShape() override;
    void WriteColours() override;

private:
    QIcon ImageOf(const ListRow& row) const;
    void ReadCurrent();
    void ReadPicks();
    void TakePicks();
    int IndexOf(const QTreeWidgetItem* item) const;
};

class TreeViewAdaptor : public ItemsAdaptor<TreeView, QTreeWidget> {
public:
    TreeViewAdaptor(TreeView& tree, QTreeWidget& widget);

protected:
    void WriteItems() override;
    void WriteSelection() override;
    void WriteMarks() override;

private:
    void ShowImages();
    void AddChildren(const Text& parent, QTreeWidgetItem& item);
    static Text KeyOf(const QTreeWidgetItem& item);

    std::map<Text, QTreeWidgetItem*> items_;
    QIcon closed_;
    QIcon open_;
};

} // namespace korvane
