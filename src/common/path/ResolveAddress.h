#pragma once

#include "common/text/Text.h"

namespace korvane {

class PathStyle;

/// What a page at the address `base` means by `reference`, without the name of a place in the page. `base`
/// has a scheme.
Text ResolveAddress(TextView base, TextView reference);

/// Whether both addresses are on the same server, or both on the disk.
bool SameOrigin(TextView a, TextView b);

/// The address of a file with this absolute path: "file:///C:/My%20pages/a.htm".
Text AddressOfFile(TextView path);
/// The path in the address of a file; empty for an address of another kind, and of another machine.
Text PathOfAddress(const PathStyle& style, TextView address);

} // namespace korvane
