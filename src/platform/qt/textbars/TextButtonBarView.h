#pragma once

#include "platform/qt/text/QtTextView.h"

#include <QComboBox>
#include <QPointer>
#include <QToolBar>
#include <functional>
#include <vector>

namespace korvane {

/// The bar over a text with the style, the font and the alignment that the text has at its cursor. What the
/// user chooses there is given to the selection, and the keyboard goes back to the text.
class TextButtonBarView final : public QToolBar {
    Q_OBJECT

public:
    explicit TextButtonBarView(QWidget* parent = nullptr);

    /// nullptr for none.
    void SetView(QtTextView* view);

private:
    using Use = std::function<void(TextControl&)>;

    QComboBox* AddBox(QComboBox* box, const char* name, const QString& tip, int letters);
    /// Runs `use` with what the user chose from the list or typed into the box.
    void Serve(QComboBox& box, const std::function<void(TextControl&, const QString&)>& use);
    void AddButtons();
    TextControl* Control() const { return view_ == nullptr ? nullptr : view_->Shown(); }
    void Change(const Use& use);
    void ShowSoon();
    void Show();

    QPointer<QtTextView> view_;
    QComboBox* style_;
    QComboBox* font_;
    QComboBox* size_;
    QComboBox* zoom_;
    /// The buttons in the order of their table.
    std::vector<QAction*> buttons_;
    bool asked_ = false;
};

} // namespace korvane
