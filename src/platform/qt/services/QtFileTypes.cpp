#include "platform/qt/services/QtFileTypes.h"

#include "platform/qt/base/Convert.h"

#include <QIcon>
#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr QMimeDatabase::MatchMode kByName = QMimeDatabase::MatchExtension;
/// No known extension is longer.
constexpr std::size_t kLongestExtension = 24;
/// A folder can have files of very many extensions, such as numbers. The desktop needs long to find out that
/// it doesn't know one, so it isn't asked about more than this.
constexpr std::size_t kMostExtensions = 1000;

/// Files in which another one is compressed: its extension tells the type, too, as in "a.tar.gz".
constexpr std::array<TextView, 8> kCompressed{u"gz", u"bz2", u"xz", u"Z", u"lz", u"lzma", u"lz4", u"zst"};
/// Longer parts of a name before such an extension are words, not extensions.
constexpr std::size_t kLongestInner = 4;

struct OwnPicture {
    const char16_t* genericName;
    TextView picture;
};
/// What takes the place of a picture that the theme doesn't have.
constexpr std::array kOwnPictures{
    OwnPicture{u"application-x-executable", u"fileProgram"},
    OwnPicture{u"audio-x-generic", u"fileSound"},
    OwnPicture{u"image-x-generic", u"filePicture"},
    OwnPicture{u"package-x-generic", u"filePackage"},
    OwnPicture{u"text-html", u"fileText"},
    OwnPicture{u"text-x-generic", u"fileText"},
    OwnPicture{u"text-x-script", u"fileText"},
    OwnPicture{u"video-x-generic", u"fileVideo"},
    OwnPicture{u"x-office-document", u"fileText"},
    OwnPicture{u"x-office-presentation", u"filePicture"},
    OwnPicture{u"x-office-spreadsheet", u"fileTable"},
};
constexpr TextView kOtherPicture = u"fileOther";

/// Databases have a type where the program isn't installed, too.
constexpr QStringView kDatabaseExtension = u"tbx";
constexpr TextView kDatabaseName = u"Korvane text database";
constexpr TextView kDatabasePicture = u"fileTable";

/// The part after the last dot; empty when there is none, or when the name begins with it.
TextView LastExtension(TextView name) {
    const std::size_t dot = name.rfind(u'.');
    return dot == 0 || dot == TextView::npos ? TextView() : name.substr(dot + 1);
}

bool IsWord(TextView part) {
    return !part.empty() && part.size() <= kLongestInner &&
           std::ranges::all_of(part, [](char16_t letter) { return QChar(letter).isLetter(); });
}

/// That part, with the one before where the file is a compressed one.
TextView ExtensionOf(TextView name) {
    const TextView last = LastExtension(name);
    if (last.empty() || last.size() > kLongestExtension) return {};
    if (std::ranges::find(kCompressed, last) == kCompressed.end()) return last;
    const TextView inner = LastExtension(name.substr(0, name.size() - last.size() - 1));
    return IsWord(inner) ? Right(name, inner.size() + 1 + last.size()) : last;
}

TextView NameOf(TextView path) {
    const std::size_t separator = path.find_last_of(u"/\\");
    return separator == TextView::npos ? path : path.substr(separator + 1);
}

TextView OwnPictureFor(const QString& genericName) {
    const auto found = std::ranges::find_if(
        kOwnPictures, [&](const OwnPicture& own) { return genericName == own.genericName; });
    return found == kOwnPictures.end() ? kOtherPicture : found->picture;
}

Text PictureOf(const QMimeType& mime) {
    for (const QString& name : {mime.iconName(), mime.genericIconName()}) {
        if (QIcon::hasThemeIcon(name)) return ToText(name);
    }
    return Text(OwnPictureFor(mime.genericIconName()));
}

} // namespace

bool QtFileTypes::PrepareImages() {
    const bool themeChanged = theme_ != QIcon::themeName();
    if (themeChanged || byExtension_.size() >= kMostExtensions) {
        byExtension_.clear();
        types_.clear();
        theme_ = QIcon::themeName();
    }
    return true;
}

const FileType& QtFileTypes::TypeOf(TextView path) {
    const TextView extension = ExtensionOf(NameOf(path));
    const auto found = byExtension_.find(extension);
    if (found != byExtension_.end()) return *found->second;
    const bool tooMany = byExtension_.size() >= kMostExtensions && !extension.empty();
    return tooMany ? TypeOf({}) : Ask(extension);
}

const FileType& QtFileTypes::Ask(TextView extension) {
    const QString end = ToQString(extension);
    const QMimeType mime = end.isEmpty()
                               ? database_.mimeTypeForName(QStringLiteral("application/octet-stream"))
                               : database_.mimeTypeForFile(QStringLiteral("a.") + end, kByName);
    const FileType& type = TypeOfMime(end, mime);
    byExtension_.emplace(extension, &type);
    return type;
}

const FileType& QtFileTypes::TypeOfMime(const QString& extension, const QMimeType& mime) {
    const bool isDatabase = extension.compare(kDatabaseExtension, Qt::CaseInsensitive) == 0;
    if (isDatabase && (!mime.isValid() || mime.isDefault())) {
        return types_[kDatabaseExtension.toString()] = {Text(kDatabaseName), Text(kDatabasePicture)};
    }
    const Text name = system_ == nullptr ? Text() : system_->NameOf(ToText(extension));
    const auto [at, isNew] = types_.try_emplace(name.empty() ? mime.name() : ToQString(name));
    if (isNew) at->second = Described(ToText(extension), mime, name);
    return at->second;
}

FileType QtFileTypes::Described(TextView extension, const QMimeType& mime, const Text& systemName) const {
    if (systemName.empty()) return {ToText(mime.comment()), PictureOf(mime)};
    const Text image = system_->ImageOf(extension);
    return {systemName, image.empty() ? PictureOf(mime) : image};
}

} // namespace korvane
