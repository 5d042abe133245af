#include "platform/windows/FileIcons.h"

#include "common/text/CaseFold.h"
#include "platform/windows/WindowsText.h"

#include <windows.h>
#include <shellapi.h>

#include <algorithm>
#include <memory>
#include <string>
#include <type_traits>

namespace korvane {

namespace {

// No path begins like these.
constexpr TextView kOfType = u"type:";
constexpr TextView kOfFile = u"file:";

struct DeleteIt {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
    void operator()(HDC context) const { DeleteDC(context); }
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
template <class Handle>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, DeleteIt>;

std::vector<std::uint32_t> PixelsOf(HBITMAP bitmap, int width, int height) {
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    BITMAPINFO form{};
    form.bmiHeader.biSize = sizeof form.bmiHeader;
    form.bmiHeader.biWidth = width;
    // A negative height begins with the top row.
    form.bmiHeader.biHeight = -height;
    form.bmiHeader.biPlanes = 1;
    form.bmiHeader.biBitCount = 32;
    form.bmiHeader.biCompression = BI_RGB;
    const Owned<HDC> context(CreateCompatibleDC(nullptr));
    GetDIBits(context.get(), bitmap, 0, static_cast<UINT>(height), pixels.data(), &form, DIB_RGB_COLORS);
    return pixels;
}

bool IsOpaque(std::uint32_t pixel) {
    return pixel >> 24 != 0;
}

/// Older pictures have no alpha, but a mask that is white where nothing is drawn.
void TakeMask(std::vector<std::uint32_t>& pixels, const std::vector<std::uint32_t>& mask) {
    constexpr std::uint32_t kColour = 0x00FFFFFF;
    constexpr std::uint32_t kOpaque = 0xFF000000;
    std::ranges::transform(pixels, mask, pixels.begin(), [](std::uint32_t pixel, std::uint32_t nothing) {
        return (nothing & kColour) != 0 ? 0 : pixel | kOpaque;
    });
}

IconPixels PixelsOf(HICON icon) {
    ICONINFO parts{};
    if (!GetIconInfo(icon, &parts)) return {};
    const Owned<HBITMAP> colour(parts.hbmColor);
    const Owned<HBITMAP> mask(parts.hbmMask);
    BITMAP facts{};
    // One in black and white has no bitmap of colours.
    if (!colour || GetObjectW(colour.get(), sizeof facts, &facts) == 0) return {};
    IconPixels pixels{facts.bmWidth, facts.bmHeight, PixelsOf(colour.get(), facts.bmWidth, facts.bmHeight)};
    if (std::ranges::none_of(pixels.argb, IsOpaque))
        TakeMask(pixels.argb, PixelsOf(mask.get(), pixels.width, pixels.height));
    return pixels;
}

void AddPixels(std::vector<IconPixels>& sizes, const Owned<HICON>& icon) {
    IconPixels pixels = PixelsOf(icon.get());
    if (!pixels.argb.empty()) sizes.push_back(std::move(pixels));
}

/// With the attributes given, the file needn't be there.
std::vector<IconPixels> Ask(const std::wstring& path, UINT attributes) {
    std::vector<IconPixels> sizes;
    for (const UINT size : {SHGFI_SMALLICON, SHGFI_LARGEICON}) {
        SHFILEINFOW info{};
        if (SHGetFileInfoW(path.c_str(), FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                           SHGFI_ICON | size | attributes) != 0)
            AddPixels(sizes, Owned<HICON>(info.hIcon));
    }
    return sizes;
}

std::vector<IconPixels> FirstIconIn(const std::wstring& program) {
    HICON largeIcon = nullptr;
    HICON smallIcon = nullptr;
    ExtractIconExW(program.c_str(), 0, &largeIcon, &smallIcon, 1);
    std::vector<IconPixels> sizes;
    for (const HICON icon : {smallIcon, largeIcon})
        AddPixels(sizes, Owned<HICON>(icon));
    return sizes;
}

bool CarriesIcon(TextView path) {
    constexpr int kCount = -1;
    constexpr UINT kFailed = ~UINT{0};
    const UINT count = ExtractIconExW(ToWide(path).c_str(), kCount, nullptr, nullptr, 0);
    return count > 0 && count != kFailed;
}

bool IsShortcut(TextView path) {
    return EndsWithIgnoringCase(path, u".lnk");
}

} // namespace

Text TypeIconName(TextView extension) {
    return Text(kOfType).append(extension);
}

Text OwnIconName(TextView path) {
    return IsShortcut(path) || CarriesIcon(path) ? Text(kOfFile).append(path) : Text();
}

std::vector<IconPixels> FileIcon(TextView name) {
    if (name.starts_with(kOfType))
        return Ask(L"a." + ToWide(name.substr(kOfType.size())), SHGFI_USEFILEATTRIBUTES);
    if (!name.starts_with(kOfFile)) return {};
    const TextView path = name.substr(kOfFile.size());
    return IsShortcut(path) ? Ask(ToWide(path), 0) : FirstIconIn(ToWide(path));
}

} // namespace korvane
