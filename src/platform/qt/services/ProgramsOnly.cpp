#include "platform/qt/services/ProgramsOnly.h"

#include <QFileDialog>
#include <QFileSystemModel>
#include <QSortFilterProxyModel>

namespace korvane {

namespace {

#ifdef Q_OS_WIN
constexpr bool kNamesTellPrograms = true;
#else
constexpr bool kNamesTellPrograms = false;
#endif

class ProgramsOnly : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
        const auto* files = qobject_cast<const QFileSystemModel*>(sourceModel());
        if (files == nullptr) return true;
        const QFileInfo file = files->fileInfo(files->index(row, 0, parent));
        return file.isDir() || file.isExecutable();
    }
};

} // namespace

void OfferProgramsFor(TextView patterns, QFileDialog& dialog) {
    if (kNamesTellPrograms || patterns != u"*.exe") return;
    // The desktop's own dialog can't filter by the permission to execute.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setProxyModel(new ProgramsOnly(&dialog));
    dialog.setNameFilter(QStringLiteral("*"));
}

} // namespace korvane
