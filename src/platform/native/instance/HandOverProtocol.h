#pragma once

#include "common/text/Text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A second start sends the running copy at most three lines in this order, and each is answered by a line.
///
///     SLOT            is answered EMPTY as soon as the running copy can take a path.
///     PATH <path>     hands over a full path, and is answered TAKEN as soon as the running copy can take it.
///     ACTIVATE        is answered DONE, and ends the conversation.
///
/// The path is written in UTF-8. Each control character and "%" itself is written as "%" and two digits, so
/// that a name can't break a line.
namespace korvane::hand_over {

/// The greatest length of a line without its end. A longer line ends the conversation.
inline constexpr std::size_t kLongestLine = 16'384;

inline constexpr std::string_view kSlotRequest = "SLOT\n";
inline constexpr std::string_view kActivateRequest = "ACTIVATE\n";
inline constexpr std::string_view kSlotEmpty = "EMPTY\n";
inline constexpr std::string_view kPathTaken = "TAKEN\n";
inline constexpr std::string_view kActivated = "DONE\n";

/// The line that hands a path over, or nothing when the running copy would refuse it.
std::optional<std::string> PathRequest(TextView path);

/// What the running copy does next with a connection.
struct Step {
    enum class Kind : std::uint8_t { Answer, TakePath, Activate, Drop };

    Kind kind;
    /// The answer is sent first. It is empty when the connection is dropped.
    std::string_view answer;
    /// The path of `TakePath`.
    Text path;
};

/// The running copy's side of one connection. Whatever is sent, it keeps at most one line in memory and
/// answers at most three lines. A line that isn't a request, or that comes in the wrong order, leads to
/// `Drop`. After `Drop` or `Activate` there are no more steps.
class Conversation {
public:
    /// Takes as many of the next bytes as there is room for, and returns their number. `Next` makes room
    /// again.
    std::size_t Receive(std::string_view bytes);
    /// The next step, or nothing while no request is complete or while a request has to wait for the slot.
    std::optional<Step> Next(bool slotEmpty);
    /// Whether a complete request waits for the slot.
    bool WaitsForSlot() const { return waitsForSlot_; }

private:
    /// The requests in their order, and the state after the last one.
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
