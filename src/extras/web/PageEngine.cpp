#include "extras/web/PageEngine.h"

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "common/path/ResolveAddress.h"
#include "common/path/WebAddress.h"
#include "context/App.h"
#include "controls/text/TextControl.h"
#include "extras/web/TypedAddress.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr std::string_view kLinkOnLight = "color:#0645ad;text-decoration:underline";
constexpr std::string_view kLinkOnDark = "color:#8ab4f8;text-decoration:underline";

bool IsOfDisk(TextView address) {
    return SchemeOf(address) == u"file";
}

bool IsHtml(TextView type) {
    return type.empty() || type == u"text/html" || type == u"application/xhtml+xml";
}

/// Of a file, by its name.
TextView TypeOfName(TextView path) {
    constexpr TextView kPages[] = {u".htm", u".html", u".xhtml", u".asp", u".php", u".cgi", u".shtml"};
    const bool page =
        std::ranges::any_of(kPages, [path](TextView extension) { return HasExtension(path, extension); });
    return page ? u"text/html" : u"text/plain";
}

struct Trouble {
    Fetched::Outcome outcome;
    TextView title;
    TextView text;
};

constexpr Trouble kTroubles[] = {
    {Fetched::Outcome::Failed, u"This page can't be reached.", u""},
    {Fetched::Outcome::NotTrusted, u"This server can't be trusted.",
     u"It couldn't prove that it is the one whose address was asked for. Nothing was sent to it."},
    {Fetched::Outcome::TooLarge, u"This page is too large.", u"Pages with more than 10 MB aren't shown."},
    {Fetched::Outcome::TooSlow, u"This page takes too long.", u"Its server didn't send all of it in time."},
};

} // namespace

PageEngine::PageEngine(App& app, WebView& view, TextControl& text) : PageEngine(app, view, text, Limits()) {}

PageEngine::PageEngine(App& app, WebView& view, TextControl& text, const Limits& limits)
    : app_(app), view_(view), text_(text), limits_(limits) {
    text_.Locked = true;
    text_.Files = app_.Port<TextFiles>();
    text_.HyperlinkClicked = [this](int, int, const Text& link) { FollowLink(link); };
}

Text PageEngine::Address() const {
    return place_ < visited_.size() ? visited_[place_] : Text();
}

// ---- Where to go ----------------------------------------------------------------------------------------

void PageEngine::Navigate(TextView address) {
    const Text whole = AddressOfTyped(app_.Files(), address);
    if (!whole.empty()) Enter(whole);
}

/// What was visited after the shown page is forgotten.
void PageEngine::Enter(const Text& address) {
    visited_.resize(std::min(place_ + 1, visited_.size()));
    visited_.push_back(address);
    GoTo(visited_.size() - 1);
}

void PageEngine::GoBack() {
    if (place_ > 0) GoTo(place_ - 1);
}

void PageEngine::GoForward() {
    if (place_ + 1 < visited_.size()) GoTo(place_ + 1);
}

void PageEngine::Refresh() {
    if (!visited_.empty()) GoTo(place_);
}

void PageEngine::Stop() {
    if (!loading_) return;
    fetches_.clear();
    Complete();
}

void PageEngine::GoTo(std::size_t place) {
    place_ = place;
    fetches_.clear();
    Begin();
    LoadPage();
}

/// A link to a place in the shown page leads nowhere else.
void PageEngine::FollowLink(const Text& link) {
    if (link.starts_with(u'#') || visited_.empty()) return;
    const Text target = ResolveAddress(Address(), link);
    if (IsOfDisk(target) && !IsOfDisk(Address()))
        return ShowNote(u"This link isn't followed.", u"A page of the net can't open files: " + target);
    if (IsOfNet(target) || IsOfDisk(target)) Enter(target);
}

// ---- Loading --------------------------------------------------------------------------------------------

void PageEngine::Begin() {
    loading_ = true;
    html_.clear();
    sources_.clear();
    pictures_.clear();
    bytesLeft_ = limits_.bytes;
    if (view_.DownloadBegin) view_.DownloadBegin();
}

void PageEngine::Complete() {
    loading_ = false;
    if (view_.DownloadComplete) view_.DownloadComplete();
}

void PageEngine::LoadPage() {
    const Text address = Address();
    if (IsOfNet(address)) return LoadFromNet(address);
    if (IsOfDisk(address)) return LoadFromDisk(address);
    ShowNote(u"This address can't be shown.", address);
    Complete();
}

void PageEngine::LoadFromNet(const Text& address) {
    auto* network = app_.Port<Network>();
    if (network == nullptr) return Take({.address = address});
    fetches_.push_back(network->Get({.address = address, .bytes = limits_.bytes, .time = limits_.time},
                                    [this](const Fetched& fetched) { Take(fetched); }));
}

void PageEngine::LoadFromDisk(const Text& address) {
    FileSystem& files = app_.Files();
    const Text path = PathOfAddress(files.Style(), address);
    Fetched fetched{.address = address, .type = Text(TypeOfName(path)), .reason = path};
    const auto size = files.FileExists(path) ? files.Size(path) : std::nullopt;
    if (size && *size > limits_.bytes) {
        fetched.outcome = Fetched::Outcome::TooLarge;
    } else if (const auto bytes = size ? files.ReadAll(path) : std::nullopt) {
        fetched.outcome = Fetched::Outcome::Done;
        fetched.bytes = std::string(bytes->View());
    }
    Take(fetched);
}

void PageEngine::Take(const Fetched& fetched) {
    if (fetched.outcome == Fetched::Outcome::Done) {
        visited_[place_] = fetched.address;
        TakePage(fetched.type, fetched.bytes);
        return FetchPictures(fetched.took);
    }
    const auto* trouble = std::ranges::find(kTroubles, fetched.outcome, &Trouble::outcome);
    Text text = fetched.address + u"\n";
    for (const TextView part : {trouble->text, TextView(fetched.reason)})
        if (!part.empty()) text += u"\n" + Text(part);
    ShowNote(trouble->title, text);
    Complete();
}

void PageEngine::TakePage(TextView type, const std::string& bytes) {
    const Text bare = BareType(type);
    bytesLeft_ -= static_cast<std::int64_t>(bytes.size());
    if (IsPicture(bytes)) {
        ShowHtml(PageOfPicture(bytes));
    } else if (IsHtml(bare)) {
        html_ = WithLinkLook(WithEncoding(bytes, type), app_.Screen().IsDark() ? kLinkOnDark : kLinkOnLight);
        sources_ = PicturesOf(html_);
        ShowHtml(html_);
    } else if (bare.starts_with(u"text/")) {
        Show(bytes, TextFormat::Plain);
    } else {
        ShowNote(u"Files of this kind can't be shown here.", Address() + u"\n\n" + bare);
    }
}

// ---- Pictures -------------------------------------------------------------------------------------------

void PageEngine::FetchPictures(std::chrono::milliseconds took) {
    const Text page = Address();
    auto* network = app_.Port<Network>();
    std::erase_if(sources_, [&](const PictureSource& source) {
        return !SameOrigin(page, ResolveAddress(page, source.address));
    });
    sources_.resize(std::min(sources_.size(), limits_.pictures));
    picturesOpen_ = sources_.size();
    if (sources_.empty()) return Complete();
    for (const PictureSource& source : std::vector(sources_)) {
        if (IsOfDisk(page)) {
            ReadPicture(source);
        } else {
            fetches_.push_back(
                network->Get({.address = ResolveAddress(page, source.address),
                              .otherServers = false,
                              .bytes = bytesLeft_,
                              .time = std::max(limits_.time - took, {})},
                             [this, source](const Fetched& fetched) { TakePicture(source, fetched); }));
        }
    }
}

void PageEngine::ReadPicture(const PictureSource& source) {
    FileSystem& files = app_.Files();
    const Text path = PathOfAddress(files.Style(), ResolveAddress(Address(), source.address));
    const bool fits = files.FileExists(path) && files.Size(path).value_or(0) <= bytesLeft_;
    const auto bytes = fits ? files.ReadAll(path) : std::nullopt;
    TakePicture(source, bytes
                            ? Fetched{.outcome = Fetched::Outcome::Done, .bytes = std::string(bytes->View())}
                            : Fetched{});
}

void PageEngine::TakePicture(const PictureSource& source, const Fetched& fetched) {
    const auto size = static_cast<std::int64_t>(fetched.bytes.size());
    if (fetched.outcome == Fetched::Outcome::Done && IsPicture(fetched.bytes) && size <= bytesLeft_) {
        bytesLeft_ -= size;
        pictures_[source.at] = fetched.bytes;
    }
    if (--picturesOpen_ == 0) PicturesDone();
}

void PageEngine::PicturesDone() {
    if (!pictures_.empty())
        text_.LoadMoreFromMemory(WithPictures(html_, pictures_, sources_), TextFormat::Html);
    Complete();
}

// ---- Showing --------------------------------------------------------------------------------------------

void PageEngine::Show(std::string_view page, int format) {
    text_.LoadFromMemory(page, format);
    text_.ShowTop();
}

void PageEngine::ShowHtml(std::string_view html) {
    Show(html, TextFormat::Html);
}

void PageEngine::ShowNote(TextView title, TextView text) {
    ShowHtml(PageOfNote(title, text));
}

} // namespace korvane
