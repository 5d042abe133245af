#pragma once

#include "common/number/Number.h"
#include "common/text/CodePage.h"
#include "grid/GridStore.h"

#include <QApplication>
#include <QPalette>
#include <QTest>
#include <memory>

namespace korvane::test {

/// Lets everything happen that is due.
inline void Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// An empty store with so many rows and columns; the cells are empty.
inline std::unique_ptr<Grid> MakeStore(int rows, int columns) {
    auto store = std::make_unique<GridStore>(CodePage::Windows1252());
    for (int col = 1; col <= columns; ++col) {
        store->AddCol(NumberText(col) + u"no", u"Column " + NumberText(col));
    }
    store->SetRowCount(Row{rows});
    return store;
}

/// Windows have another palette as long as this lives.
class UnderPalette {
public:
    explicit UnderPalette(const QPalette& palette) { QApplication::setPalette(palette); }
    UnderPalette(const UnderPalette&) = delete;
    UnderPalette& operator=(const UnderPalette&) = delete;
    ~UnderPalette() { QApplication::setPalette(before_); }

private:
    QPalette before_ = QApplication::palette();
};

} // namespace korvane::test
