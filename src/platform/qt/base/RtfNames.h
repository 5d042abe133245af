#pragma once

namespace korvane {

/// The names under which programs put RTF on the clipboard; the last one is that of Windows.
inline constexpr const char* kRtfNames[] = {"text/rtf", "application/rtf", "text/richtext",
                                            "application/x-qt-windows-mime;value=\"Rich Text Format\""};

} // namespace korvane
