#include "platform/windows/WindowHandOver.h"

#include "common/text/CaseFold.h"

#include <string_view>

namespace korvane {

namespace {

constexpr std::string_view kClassPrefix = "Thunder";
constexpr std::string_view kPictureBox = "PictureBoxDC";
constexpr std::string_view kTextBox = "TextBox";
constexpr TextView kTitle = u"Korvane";

using TitleTest = bool (*)(TextView title);

/// The first listed window whose title passes the test, or `kNoWindow`.
WindowHandle FindTitle(const std::vector<ListedWindow>& listed, TitleTest passes) {
    for (const ListedWindow& window : listed) {
        if (passes(window.title)) return window.handle;
    }
    return kNoWindow;
}

bool HoldsName(TextView title) {
    return ContainsIgnoringCase(title, kTitle);
}

bool IsName(TextView title) {
    return EqualIgnoringCase(title, kTitle);
}

bool BeginsWithName(TextView title) {
    return EqualIgnoringCase(Left(title, kTitle.size()), kTitle);
}

} // namespace

WindowHandOver::WindowHandOver(WindowList& windows, CommandBox& commandBox)
    : windows_(windows), commandBox_(commandBox) {}

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
    return windows_.SetText(textBox_, path);
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
