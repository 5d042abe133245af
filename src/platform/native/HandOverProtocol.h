#pragma once

#include "common/text/Text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What a second start says to the running copy: at most three lines, in this order, each answered by a line.
///
///     SLOT            answered EMPTY, as soon as the running copy can take a path
///     PATH <path>     a full path, answered TAKEN, as soon as the running copy can take it
///     ACTIVATE        answered DONE; the end of the conversation
///
/// The path stands in UTF-8, with "%" and two digits for each control character and for "%" itself, so that
/// no name breaks a line.
namespace korvane::hand_over {

/// The longest line that is listened to, without its end.
inline constexpr std::size_t kLongestLine = 16'384;

inline constexpr std::string_view kSlotRequest = "SLOT\n";
inline constexpr std::string_view kActivateRequest = "ACTIVATE\n";
inline constexpr std::string_view kSlotEmpty = "EMPTY\n";
inline constexpr std::string_view kPathTaken = "TAKEN\n";
inline constexpr std::string_view kActivated = "DONE\n";

/// The line that hands a path over; nothing when the running copy wouldn't listen to it.
std::optional<std::string> PathRequest(TextView path);

/// What the running copy is to do with a connection.
struct Step {
    enum class Kind : std::uint8_t { Answer, TakePath, Activate, Drop };

    Kind kind;
    /// To be sent first; empty when the connection is dropped.
    std::string_view answer;
    /// Of `TakePath`.
    Text path;
};

/// The running copy's side of one connection. Whatever comes, it holds no more than one line of it, and
/// answers no more than three; what isn't a request, or not the time for one, ends in `Drop`. After that or
/// `Activate` there are no more steps.
class Conversation {
public:
    /// Takes the next bytes as far as there is room for them; the number taken. Room comes back with `Next`.
    std::size_t Receive(std::string_view bytes);
    /// The next thing to do; nothing while no request is complete, or while the slot isn't empty for one.
    std::optional<Step> Next(bool slotEmpty);
    /// Whether a complete request waits for the slot.
    bool WaitsForSlot() const { return waitsForSlot_; }

private:
    /// The requests in their order, and what comes behind them.
    enum class Stage : std::uint8_t { Slot, Path, Activate, Ended };
    struct Request {
        Stage stage;
        Step step;
    };
    static Request Read(std::string_view line);
    Step Perform(Request request, std::size_t lineLength);

    std::string received_;
    Stage earliest_ = Stage::Slot;
    bool waitsForSlot_ = false;
};

} // namespace korvane::hand_over
