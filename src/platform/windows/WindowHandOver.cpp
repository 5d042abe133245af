#include "platform/windows/WindowHandOver.h"

#include <algorithm>
#include <string_view>

namespace korvane {

namespace {

constexpr std::string_view kClassPrefix = "Thunder";
constexpr std::string_view kPictureBox = "PictureBoxDC";
constexpr std::string_view kTextBox = "TextBox";
constexpr std::string_view kTitle = "korvane";

char Lower(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char byte) { return Lower(byte); });
    return lower;
}

using TitleTest = bool (*)(const std::string& lowerTitle);

/// The first listed window whose title passes, or none.
WindowHandle FindTitle(const std::vector<ListedWindow>& listed, TitleTest passes) {
    for (const ListedWindow& window : listed) {
        if (passes(Lower(window.title))) return window.handle;
    }
    return kNoWindow;
}

bool HoldsName(const std::string& title) {
    return title.find(kTitle) != std::string::npos;
}

bool IsName(const std::string& title) {
    return title == kTitle;
}

bool BeginsWithName(const std::string& title) {
    return title.starts_with(kTitle);
}

} // namespace

WindowHandOver::WindowHandOver(WindowList& windows, CommandBox& commandBox, const CodePage& page)
    : windows_(windows), commandBox_(commandBox), page_(page) {}

bool WindowHandOver::FindReceiver() {
    const WindowHandle target = FindTitle(EnumerateWindows(windows_), HoldsName);
    if (target == kNoWindow) return false;
    const WindowHandle pictureBox = FindChildWindow(windows_, target, kClassPrefix, kPictureBox);
    if (pictureBox == kNoWindow) return false;
    textBox_ = FindChildWindow(windows_, pictureBox, kClassPrefix, kTextBox);
    return textBox_ != kNoWindow;
}

bool WindowHandOver::WaitUntilSlotEmpty() {
    while (!ReadWindowText(windows_, textBox_).empty())
        windows_.Rest();
    return true;
}

bool WindowHandOver::Deliver(TextView path) {
    return windows_.Send(textBox_, kWmSetText, page_.ToBytes(path).c_str()) != 0;
}

void WindowHandOver::ActivateRunning() {
    const auto listed = EnumerateWindows(windows_);
    for (const TitleTest passes : {IsName, BeginsWithName}) {
        const WindowHandle window = FindTitle(listed, passes);
        if (window == kNoWindow) continue;
        windows_.Activate(window);
        return;
    }
}

void WindowHandOver::Listen(Reception reception) {
    commandBox_.Open(std::move(reception.received));
}

} // namespace korvane
