#pragma once

#include "common/number/Number.h"
#include "common/text/CodePage.h"
#include "grid/GridStore.h"

#include <QApplication>
#include <QPalette>
#include <QTest>
#include <memory>

namespace korvane::test {

/// Handles all pending events.
inline void Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// A store with this many rows and columns. All its cells are empty.
inline std::unique_ptr<Grid> MakeStore(int rows, int columns) {
    auto store = std::make_unique<GridStore>(CodePage::Windows1252());
    for (int col = 1; col <= columns; ++col) {
        store->AddCol(NumberText(col) + u"no", u"Column " + NumberText(col));
    }
    store->SetRowCount(Row{rows});
    return store;
}

/// Gives windows another palette while it lives.
class UnderPalette {
public:
    explicit UnderPalette(const QPalette& palette) { QApplication::setPalette(palette); }
    UnderPalette(const UnderPalette&) = delete;
    UnderPalette& operator=(const UnderPalette&) = delete;
    ~UnderPalette() { QApplication::setPalette(before_); }

private:
    QPalette before_ = QApplication::palette();
};

/// Gives windows a font of this size in points while it lives.
class UnderFont {
public:
    explicit UnderFont(int points) {
        QFont font = before_;
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    UnderFont(const UnderFont&) = delete;
    UnderFont& operator=(const UnderFont&) = delete;
    ~UnderFont() { QApplication::setFont(before_); }

private:
    QFont before_ = QApplication::font();
};

} // namespace korvane::test
