#include "platform/qt/dialogs/FileDialogFilters.h"

#include "platform/qt/base/Convert.h"

namespace korvane {

namespace {

/// Makes "Programs" of "Programs (*.exe)". The dialog adds the patterns in brackets by itself.
QString WithoutPatterns(const QString& name) {
    return name.left(name.indexOf(QLatin1Char('('))).trimmed();
}

/// Turns patterns separated by semicolons ("*.tbx;*.txt") into the form that Qt's dialogs expect. "*.*" means
/// all files, even those without a dot in their names, and so does an empty list.
QString FilePatterns(TextView patterns) {
    QStringList list = ToQString(patterns).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    // With a wrong separator a name gets among the patterns. It would match no file.
    list.removeIf([](const QString& pattern) { return pattern.contains(QLatin1Char('(')); });
    list.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
    return list.isEmpty() ? QStringLiteral("*") : list.join(QLatin1Char(' '));
}

} // namespace

QStringList FileNameFilters(TextView pairs) {
    const QStringList parts = ToQString(pairs).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = FilePatterns(ToText(parts[i + 1]));
        filters += QStringLiteral("%1 (%2)").arg(WithoutPatterns(parts[i]), patterns);
    }
    return filters;
}

} // namespace korvane
