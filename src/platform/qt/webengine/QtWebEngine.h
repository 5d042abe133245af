#pragma once

#include "platform/qt/net/WebEnginePart.h"

#include <QObject>
#include <QPointer>
#include <memory>

class QWebEngineProfile;
class QWebEngineView;

namespace korvane {

class QuietPage;

/// Pages as a browser runs them, with Qt WebEngine. Nothing is kept of them after the engine is gone, and
/// nothing is downloaded.
class QtWebEngine final : public QObject, public WebEngine {
    Q_OBJECT

public:
    explicit QtWebEngine(const WebEngineSeat& seat);
    QtWebEngine(const QtWebEngine&) = delete;
    QtWebEngine& operator=(const QtWebEngine&) = delete;
    ~QtWebEngine() override;

    void Navigate(TextView address) override;
    void GoBack() override;
    void GoForward() override;
    void Refresh() override;
    void Stop() override;

private:
    /// Puts the page into its place as soon as that is there.
    void TakeSeat();
    /// Before each load that the user wants.
    void Ask();
    void Started();
    void Finished();
    /// After the process of the page has ended.
    void TellOfTheEnd();
    void Begin();
    void Complete();

    WebEngineSeat seat_;
    QWebEngineProfile* profile_;
    QuietPage* page_;
    QPointer<QWebEngineView> view_;
    bool loading_ = false;
    /// Until the wanted load has started. What finishes before it is an older one.
    bool asked_ = false;
};

} // namespace korvane
