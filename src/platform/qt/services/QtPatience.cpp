#include "platform/qt/services/QtPatience.h"

#include "platform/qt/base/DialogParent.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProgressDialog>
#include <memory>

namespace korvane {

namespace {

/// In milliseconds.
constexpr qint64 kShownAfter = 700;

class Patience {
public:
    Patience() {
        started_.start();
        dialog_.setWindowModality(Qt::ApplicationModal);
        dialog_.setMinimumDuration(static_cast<int>(kShownAfter));
        dialog_.setAutoReset(false);
    }

    bool GoOn() {
        if (!dialog_.isVisible() && started_.elapsed() >= kShownAfter) dialog_.show();
        // Until the dialog keeps the user from the other windows, what is done there has to wait.
        QApplication::processEvents(dialog_.isVisible() ? QEventLoop::AllEvents
                                                        : QEventLoop::ExcludeUserInputEvents);
        return !dialog_.wasCanceled();
    }

private:
    QProgressDialog dialog_{QObject::tr("Another program converts the document..."), QObject::tr("Cancel"), 0,
                            0, DialogParent()};
    QElapsedTimer started_;
};

} // namespace

std::function<bool()> BeginPatience() {
    return [patience = std::make_shared<Patience>()] { return patience->GoOn(); };
}

} // namespace korvane
