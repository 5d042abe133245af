#pragma once

class QEvent;
class QKeyEvent;
class QWidget;

namespace korvane {

/// Whether the widget edits a text and uses this key for it. Such a key is the widget's even where a menu
/// binds it too.
bool EditsWith(const QWidget& widget, const QKeyEvent& key);

/// Whether the event pastes from a clipboard that is empty. Qt's texts of several lines fail at that.
bool PastesNothing(const QEvent& event);

/// Redoes in the edited text if the key is Ctrl+Y, which Qt's widgets know on Windows alone. False when it is
/// another key.
bool RedidWith(QWidget& widget, const QKeyEvent& key);

} // namespace korvane
