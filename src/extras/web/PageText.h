#pragma once

#include "common/text/Text.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// A picture of a page: the address that the page has for it, and the place of that address in the page.
struct PictureSource {
    std::size_t at = 0;
    std::size_t length = 0;
    Text address;
    bool operator==(const PictureSource&) const = default;
};

/// The pictures of a page, in order. Those that are part of it are left out.
std::vector<PictureSource> PicturesOf(std::string_view html);

/// The page with these pictures in it; the keys are their places. Nothing of what is in a picture can become
/// a part of the page's text.
std::string WithPictures(std::string_view html, const std::map<std::size_t, std::string>& pictures,
                         const std::vector<PictureSource>& sources);

/// The page with a look for its links, which a page mostly leaves to the browser.
std::string WithLinkLook(std::string_view html, std::string_view style);

/// Whether the bytes are a picture that a page can show.
bool IsPicture(std::string_view bytes);
/// A page with one picture.
std::string PageOfPicture(std::string_view bytes);

/// A page that tells the user something.
std::string PageOfNote(TextView title, TextView text);

/// The page with the encoding that its server tells ("text/html; charset=utf-8"), which goes before its own.
std::string WithEncoding(std::string_view html, TextView type);

/// What comes before the parameters of a type, in lower-case letters: "text/html".
Text BareType(TextView type);

} // namespace korvane
