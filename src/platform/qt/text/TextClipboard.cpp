#include "platform/qt/text/TextClipboard.h"

#include "document/html/Html.h"
#include "document/rtf/Rtf.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/base/RtfNames.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr QLatin1String kHtml("text/html");
constexpr QLatin1String kPlain("text/plain");

bool IsRtfName(const QString& name) {
    return std::ranges::any_of(kRtfNames, [&name](const char* rtf) { return name == QLatin1String(rtf); });
}

QByteArray BytesOf(const std::string& bytes) {
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

class RichMimeData final : public QMimeData {
public:
    RichMimeData(std::string rtf, TextView plain) : rtf_(std::move(rtf)), plain_(ToLines(plain)) {}

    bool hasFormat(const QString& name) const override { return formats().contains(name); }
    QStringList formats() const override {
        QStringList names;
        for (const char* name : kRtfNames)
            names.push_back(QLatin1String(name));
        names << kHtml << kPlain;
        return names;
    }

protected:
    QVariant retrieveData(const QString& name, QMetaType type) const override {
        if (IsRtfName(name)) return BytesOf(rtf_);
        if (name == kHtml) return QString::fromUtf8(BytesOf(doc::WriteHtml(doc::ReadRtf(rtf_).document)));
        if (name == kPlain) return plain_;
        return QMimeData::retrieveData(name, type);
    }

private:
    std::string rtf_;
    QString plain_;
};

std::string RtfOfHtml(const QString& html) {
    const doc::ReadResult read = doc::ReadHtml("\xEF\xBB\xBF" + html.toStdString());
    if (read.trouble == doc::Trouble::WrongFormat) return {};
    return doc::WriteRtf(read.document, doc::RtfExtent::Fragment);
}

} // namespace

std::unique_ptr<QMimeData> RichMime(std::string rtf, TextView plain) {
    return std::make_unique<RichMimeData>(std::move(rtf), plain);
}

std::string RtfIn(const QMimeData& data) {
    for (const char* name : kRtfNames) {
        const QByteArray bytes = data.data(QLatin1String(name));
        // Some programs offer a format and then have nothing in it.
        if (bytes.startsWith("{\\rtf")) return bytes.toStdString();
    }
    return data.hasHtml() ? RtfOfHtml(data.html()) : std::string();
}

bool HoldsText(const QMimeData& data) {
    return data.hasText() || data.hasHtml() || std::ranges::any_of(kRtfNames, [&data](const char* name) {
               return data.hasFormat(QLatin1String(name));
           });
}

} // namespace korvane
