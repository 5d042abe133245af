#include "common/path/ResolveAddress.h"

#include "common/path/PathStyle.h"
#include "common/path/WebAddress.h"
#include "common/text/CaseFold.h"

#include <algorithm>
#include <string>

namespace korvane {

namespace {

/// An address taken apart. `server` is with its slashes and `query` with its mark.
struct Parts {
    TextView server;
    TextView path;
    TextView query;
};

/// What comes before the first of the characters goes away from `rest`.
TextView TakeUpTo(TextView& rest, TextView characters) {
    const TextView taken = rest.substr(0, rest.find_first_of(characters));
    rest.remove_prefix(taken.size());
    return taken;
}

/// Of an address without its scheme.
Parts PartsOf(TextView rest) {
    Parts parts;
    if (rest.starts_with(u"//")) {
        TextView after = rest.substr(2);
        parts.server = rest.substr(0, TakeUpTo(after, u"/?#").size() + 2);
        rest.remove_prefix(parts.server.size());
    }
    parts.path = TakeUpTo(rest, u"?#");
    parts.query = TakeUpTo(rest, u"#");
    return parts;
}

Parts PartsAfterScheme(TextView address) {
    return PartsOf(address.substr(SchemeOf(address).size() + 1));
}

/// Without "." and "..", which never lead above the top.
Text Straight(TextView path) {
    Text straight;
    while (!path.empty()) {
        const TextView step = path.substr(0, path.find(u'/', 1));
        path.remove_prefix(step.size());
        if (step == u"/." || step == u"/..") {
            if (step == u"/..") straight.erase(std::min(straight.rfind(u'/'), straight.size()));
            if (path.empty()) straight += u'/';
        } else {
            straight += step;
        }
    }
    return straight;
}

/// Without what browsers leave out of addresses: line ends and tabs anywhere, and blanks round it.
Text Cleaned(TextView reference) {
    Text cleaned(Trim(reference));
    std::erase_if(cleaned, [](char16_t character) { return character < u' '; });
    return Text(Trim(cleaned));
}

TextView UpToLastSlash(TextView path) {
    return path.substr(0, path.rfind(u'/') + 1);
}

Text PathFrom(const Parts& base, TextView path) {
    if (path.starts_with(u'/')) return Straight(path);
    const TextView folder = UpToLastSlash(base.path);
    return Straight((folder.empty() ? u"/" : Text(folder)) + Text(path));
}

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

bool StaysInAddress(char character) {
    const bool letter = (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
    const bool digit = character >= '0' && character <= '9';
    return letter || digit ||
           std::string_view("-._~/:@!$&'()*+,;=").find(character) != std::string_view::npos;
}

std::string Decoded(std::string_view coded) {
    std::string plain;
    for (std::size_t at = 0; at < coded.size(); ++at) {
        const auto digit = [&](std::size_t place) {
            const char upper = place < coded.size() && coded[place] >= 'a' && coded[place] <= 'f'
                                   ? static_cast<char>(coded[place] - 'a' + 'A')
                                   : (place < coded.size() ? coded[place] : ' ');
            return kHexDigits.find(upper);
        };
        const bool code = coded[at] == '%' && digit(at + 1) < 16 && digit(at + 2) < 16;
        plain += code ? static_cast<char>(digit(at + 1) * 16 + digit(at + 2)) : coded[at];
        if (code) at += 2;
    }
    return plain;
}

} // namespace

Text ResolveAddress(TextView base, TextView reference) {
    const Text wanted = Cleaned(reference);
    if (!SchemeOf(wanted).empty()) return wanted.substr(0, wanted.find(u'#'));
    const Parts from = PartsAfterScheme(base);
    const Parts to = PartsOf(wanted);
    const Text scheme = SchemeOf(base) + u":";
    if (!to.server.empty()) return scheme + Text(to.server) + Straight(to.path) + Text(to.query);
    const Text server(from.server);
    if (!to.path.empty()) return scheme + server + PathFrom(from, to.path) + Text(to.query);
    return scheme + server + Text(from.path) + Text(to.query.empty() ? from.query : to.query);
}

bool SameOrigin(TextView a, TextView b) {
    return SchemeOf(a) == SchemeOf(b) &&
           EqualIgnoringCase(PartsAfterScheme(a).server, PartsAfterScheme(b).server);
}

Text AddressOfFile(TextView path) {
    std::string address = "file://";
    std::string bytes = ToUtf8(path);
    std::ranges::replace(bytes, '\\', '/');
    if (!bytes.starts_with('/')) address += '/';
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (StaysInAddress(byte))
            address += byte;
        else
            (address += '%') += {kHexDigits[code / 16], kHexDigits[code % 16]};
    }
    return FromUtf8(address);
}

Text PathOfAddress(const PathStyle& style, TextView address) {
    if (SchemeOf(address) != u"file") return {};
    const Parts parts = PartsAfterScheme(address);
    const bool here =
        parts.server.empty() || parts.server == u"//" || EqualIgnoringCase(parts.server, u"//localhost");
    Text path = here ? FromUtf8(Decoded(ToUtf8(parts.path))) : Text();
    if (path.find(u'\0') != Text::npos) return {};
    if (!style.HasDrives()) return path;
    std::ranges::replace(path, u'/', u'\\');
    return path.starts_with(u'\\') ? path.substr(1) : path;
}

} // namespace korvane
