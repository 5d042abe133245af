#include "platform/qt/web/QtNetwork.h"

#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslError>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace korvane {

namespace {

constexpr int kMostRedirects = 10;
/// What waits in Qt until it is taken, so that a fast server can't fill the memory.
constexpr qint64 kReadBuffer = 256 * 1024;

QString ToQString(TextView text) {
    return QStringView(text).toString();
}

Text ToText(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

bool IsOfNet(const QUrl& address) {
    return address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https");
}

QNetworkRequest RequestOf(const FetchRequest& asked) {
    QNetworkRequest request(QUrl(ToQString(asked.address)));
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Korvane"));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         asked.otherServers ? QNetworkRequest::NoLessSafeRedirectPolicy
                                            : QNetworkRequest::SameOriginRedirectPolicy);
    request.setMaximumRedirectsAllowed(kMostRedirects);
    for (const auto keeps :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute})
        request.setAttribute(keeps, QNetworkRequest::Manual);
    return request;
}

class QtFetch final : public Fetch {
public:
    QtFetch(const FetchRequest& asked, std::function<void(Fetched)> then)
        : address_(asked.address), most_(asked.bytes), then_(std::move(then)) {
        clock_.start();
        limit_.setSingleShot(true);
        QObject::connect(&limit_, &QTimer::timeout, &limit_, [this] { Finish(Fetched::Outcome::TooSlow); });
        limit_.start(asked.time);
    }
    QtFetch(const QtFetch&) = delete;
    QtFetch& operator=(const QtFetch&) = delete;
    ~QtFetch() override { LetGo(); }

    void Follow(QNetworkReply& reply) {
        reply_ = &reply;
        reply.setReadBufferSize(kReadBuffer);
        QObject::connect(&reply, &QNetworkReply::sslErrors, &limit_,
                         [this](const QList<QSslError>& errors) { NoteErrors(errors); });
        QObject::connect(&reply, &QNetworkReply::readyRead, &limit_, [this] { TakeBytes(); });
        QObject::connect(&reply, &QNetworkReply::finished, &limit_, [this] { Finished(); });
    }
    /// Says later that such an address isn't fetched.
    void Refuse() {
        QTimer::singleShot(0, &limit_, [this] {
            reason_ = u"Only addresses of the web are fetched.";
            Finish(Fetched::Outcome::Failed);
        });
    }

private:
    void LetGo() {
        if (reply_ == nullptr) return;
        QNetworkReply* reply = std::exchange(reply_, nullptr);
        reply->disconnect(&limit_);
        reply->abort();
        reply->deleteLater();
    }
    void NoteErrors(const QList<QSslError>& errors) {
        trusted_ = false;
        for (const QSslError& error : errors)
            reason_ += (reason_.empty() ? u"" : u"\n") + ToText(error.errorString());
    }
    void TakeBytes() {
        const QByteArray bytes = reply_->readAll();
        bytes_.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        if (static_cast<std::int64_t>(bytes_.size()) > most_) Finish(Fetched::Outcome::TooLarge);
    }
    void Finished() {
        TakeBytes();
        if (reply_ == nullptr) return;
        // A page that tells of an error is a page too.
        const bool answered = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
        const bool failed = reply_->error() != QNetworkReply::NoError;
        const bool told =
            answered && !bytes_.empty() && reply_->error() >= QNetworkReply::ContentAccessDenied;
        if (failed && reason_.empty()) reason_ = ToText(reply_->errorString());
        if (!trusted_) return Finish(Fetched::Outcome::NotTrusted);
        Finish(failed && !told ? Fetched::Outcome::Failed : Fetched::Outcome::Done);
    }
    /// The object may be gone afterwards.
    void Finish(Fetched::Outcome outcome) {
        limit_.stop();
        Fetched fetched{.outcome = outcome, .address = address_, .reason = reason_};
        fetched.took = std::chrono::milliseconds(clock_.elapsed());
        if (reply_ != nullptr && outcome == Fetched::Outcome::Done) {
            fetched.address = ToText(reply_->url().toString(QUrl::FullyEncoded | QUrl::RemoveFragment));
            fetched.type = ToText(reply_->header(QNetworkRequest::ContentTypeHeader).toString());
            fetched.bytes = std::move(bytes_);
        }
        LetGo();
        const auto then = std::move(then_);
        then(std::move(fetched));
    }

    Text address_;
    std::int64_t most_;
    std::function<void(Fetched)> then_;
    QElapsedTimer clock_;
    /// Signals that come for it go with it.
    QTimer limit_;
    QNetworkReply* reply_ = nullptr;
    bool trusted_ = true;
    Text reason_;
    std::string bytes_;
};

} // namespace

QtNetwork::QtNetwork() = default;
QtNetwork::~QtNetwork() = default;

std::unique_ptr<Fetch> QtNetwork::Get(const FetchRequest& request, std::function<void(Fetched)> then) {
    auto fetch = std::make_unique<QtFetch>(request, std::move(then));
    if (manager_ == nullptr) manager_ = std::make_unique<QNetworkAccessManager>();
    if (IsOfNet(QUrl(ToQString(request.address))))
        fetch->Follow(*manager_->get(RequestOf(request)));
    else
        fetch->Refuse();
    return fetch;
}

} // namespace korvane
