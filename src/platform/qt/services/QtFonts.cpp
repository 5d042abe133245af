#include "platform/qt/services/QtFonts.h"

#include "platform/qt/base/Convert.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace korvane {

namespace {

std::vector<Text> InstalledNames() {
    std::vector<Text> names;
    for (const QString& family : QFontDatabase::families()) {
        if (QFontDatabase::isPrivateFamily(family)) continue;
        // When two makers have a font of the same name, Qt lists each with its maker in brackets.
        const qsizetype maker = family.lastIndexOf(QStringLiteral(" ["));
        Text name = ToText(family.endsWith(u']') && maker > 0 ? family.left(maker) : family);
        if (names.empty() || names.back() != name) names.push_back(std::move(name));
    }
    return names;
}

} // namespace

QtFonts::QtFonts() {
    QObject::connect(qApp, &QGuiApplication::fontDatabaseChanged, &change_, [this] { names_.clear(); });
}

std::vector<Text> QtFonts::Names() const {
    if (names_.empty()) names_ = InstalledNames();
    return names_;
}

bool QtFonts::Has(TextView name) const {
    return QFontDatabase::hasFamily(ToQString(name));
}

} // namespace korvane
