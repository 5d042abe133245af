#include "app/WindowsRtf.h"

#include "platform/qt/base/RtfNames.h"

#include <windows.h>
#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/private/qwindowsmime_p.h>
#include <objidl.h>

#include <QMimeData>
#include <cstring>

namespace korvane {

namespace {

using Application = QNativeInterface::Private::QWindowsApplication;

/// nullptr off screen and when the application has gone.
Application* OwnApplication() {
    return qGuiApp == nullptr ? nullptr : qGuiApp->nativeInterface<Application>();
}

QString RtfName() {
    return QString::fromLatin1(kRtfNames[0]);
}

} // namespace

class WindowsRtf::Converter final : public QNativeInterface::Private::QWindowsMime {
public:
    bool canConvertFromMime(const FORMATETC& format, const QMimeData* data) const override {
        return format.cfFormat == format_ && (format.tymed & TYMED_HGLOBAL) != 0 &&
               data->hasFormat(RtfName());
    }

    bool convertFromMime(const FORMATETC& format, const QMimeData* data, STGMEDIUM* medium) const override {
        if (!canConvertFromMime(format, data)) return false;
        const QByteArray rtf = data->data(RtfName());
        // Some programs read up to a null.
        const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, static_cast<SIZE_T>(rtf.size()) + 1);
        if (block == nullptr) return false;
        std::memcpy(GlobalLock(block), rtf.constData(), static_cast<std::size_t>(rtf.size()));
        GlobalUnlock(block);
        *medium = {};
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = block;
        return true;
    }

    QList<FORMATETC> formatsForMime(const QString& name, const QMimeData*) const override {
        if (name != RtfName()) return {};
        return {FORMATETC{format_, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL}};
    }

    // What other programs put there has its name already.
    bool canConvertToMime(const QString&, IDataObject*) const override { return false; }
    QVariant convertToMime(const QString&, IDataObject*, QMetaType) const override { return {}; }
    QString mimeForFormat(const FORMATETC&) const override { return {}; }

private:
    const CLIPFORMAT format_ = static_cast<CLIPFORMAT>(RegisterClipboardFormatW(L"Rich Text Format"));
};

WindowsRtf::WindowsRtf() : converter_(std::make_unique<Converter>()) {
    if (Application* const application = OwnApplication()) application->registerMime(converter_.get());
}

WindowsRtf::~WindowsRtf() {
    if (Application* const application = OwnApplication()) application->unregisterMime(converter_.get());
}

} // namespace korvane
