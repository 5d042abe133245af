#include "platform/native/instance/HandOverProtocol.h"

#include <algorithm>

namespace korvane::hand_over {

namespace {

constexpr std::string_view kPathWord = "PATH ";
constexpr std::string_view kDigits = "0123456789ABCDEF";

bool NeedsEscape(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code < 0x20 || code == 0x7F || byte == '%';
}

std::string Escape(std::string_view bytes) {
    std::string line;
    for (const char byte : bytes) {
        if (!NeedsEscape(byte)) {
            line += byte;
            continue;
        }
        const auto code = static_cast<unsigned char>(byte);
        line += {'%', kDigits[code >> 4], kDigits[code & 0xF]};
    }
    return line;
}

/// The byte that two digits after a "%" mean, or nothing when there are no two digits.
std::optional<char> ReadEscape(std::string_view digits) {
    if (digits.size() < 2) return std::nullopt;
    const std::size_t high = kDigits.find(digits[0]);
    const std::size_t low = kDigits.find(digits[1]);
    if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
    return static_cast<char>(high * 16 + low);
}

std::optional<std::string> Unescape(std::string_view line) {
    std::string bytes;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] != '%') {
            bytes += line[at];
            continue;
        }
        const auto byte = ReadEscape(line.substr(at + 1));
        if (!byte) return std::nullopt;
        bytes += *byte;
        at += 2;
    }
    return bytes;
}

bool IsFullPath(std::string_view path) {
    return path.starts_with('/') && path.find('\0') == std::string_view::npos;
}

std::optional<Text> ReadPath(std::string_view line) {
    const auto bytes = Unescape(line);
    if (!bytes || !IsFullPath(*bytes)) return std::nullopt;
    Text path = FromUtf8(*bytes);
    // If the path isn't valid UTF-8, it would be changed by the conversion and name another file.
    if (ToUtf8(path) != *bytes) return std::nullopt;
    return path;
}

} // namespace

std::optional<std::string> PathRequest(TextView path) {
    const std::string bytes = ToUtf8(path);
    const std::string line = std::string(kPathWord) + Escape(bytes);
    if (!IsFullPath(bytes) || line.size() > kLongestLine) return std::nullopt;
    return line + '\n';
}

std::size_t Conversation::Receive(std::string_view bytes) {
    const std::size_t room = kLongestLine + 1 - received_.size();
    const std::size_t taken = std::min(room, bytes.size());
    received_ += bytes.substr(0, taken);
    return taken;
}

std::optional<Step> Conversation::Next(bool slotEmpty) {
    waitsForSlot_ = false;
    if (earliest_ == Stage::Ended) return std::nullopt;
    const std::size_t length = received_.find('\n') + 1;
    if (length == 0 && received_.size() <= kLongestLine) return std::nullopt;
    Request request = Read(std::string_view(received_).substr(0, length));
    if (request.stage < earliest_) request = {Stage::Ended, {Step::Kind::Drop, {}, {}}};
    waitsForSlot_ = request.stage < Stage::Activate && !slotEmpty;
    if (waitsForSlot_) return std::nullopt;
    return Perform(std::move(request), length);
}

/// The request in a line (given with its line end). Any other line ends the conversation.
Conversation::Request Conversation::Read(std::string_view line) {
    if (line == kSlotRequest) return {Stage::Slot, {Step::Kind::Answer, kSlotEmpty, {}}};
    if (line == kActivateRequest) return {Stage::Activate, {Step::Kind::Activate, kActivated, {}}};
    if (line.starts_with(kPathWord)) {
        line.remove_prefix(kPathWord.size());
        line.remove_suffix(1);
        if (auto path = ReadPath(line))
            return {Stage::Path, {Step::Kind::TakePath, kPathTaken, std::move(*path)}};
    }
    return {Stage::Ended, {Step::Kind::Drop, {}, {}}};
}

Step Conversation::Perform(Request request, std::size_t lineLength) {
    received_.erase(0, lineLength);
    earliest_ = static_cast<Stage>(static_cast<int>(request.stage) + 1);
    if (request.stage >= Stage::Activate) earliest_ = Stage::Ended;
    return std::move(request.step);
}

} // namespace korvane::hand_over
