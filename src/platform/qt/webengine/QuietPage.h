#pragma once

#include <QWebEnginePage>

namespace korvane {

/// A page that gets no permission, opens no window and shows no dialog. It goes to addresses of the web, and
/// a page of the disk to files.
class QuietPage final : public QWebEnginePage {
    Q_OBJECT

public:
    explicit QuietPage(QWebEngineProfile* profile);

    /// Shows a text of the program's own.
    void ShowNote(const QString& title, const QString& text);

signals:
    /// The page isn't left for such an address.
    void Refused();

protected:
    bool acceptNavigationRequest(const QUrl& to, NavigationType type, bool isMainFrame) override;
    QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override { return {}; }
    void javaScriptAlert(const QUrl&, const QString&) override {}
    bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
    bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override { return false; }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                  const QString&) override {}

private:
    bool ownText_ = false;
};

} // namespace korvane
