#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The scheme with which the address begins, in lower-case letters: "https" of "HTTPS://x.org", "about" of
/// "about:blank". Empty when it has none: a drive ("C:\") and a server with its port ("localhost:8080") are
/// no schemes.
Text SchemeOf(TextView address);

/// The address with "https://" before it if it has no scheme.
Text WithScheme(TextView address);

/// Whether a server of the web has what is at the address.
bool IsOfNet(TextView address);

/// Whether a desktop may be asked to open the address: it is of a kind that shows something and starts no
/// program.
bool IsForBrowsers(TextView address);

} // namespace korvane
