#pragma once

#include "common/text/Text.h"

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace korvane {

class FileSystem;

/// Whether an answer is still waited for.
using StillWaits = std::function<bool()>;
/// A question to the disk, or a work on it. After each of its steps it asks whether it is still waited for,
/// and ends if it isn't.
using DiskQuestion = std::function<void(FileSystem&, const StillWaits&)>;

/// Asks a disk that may take long to answer or never do so, as one on a network that has gone.
class PatientDisk {
public:
    virtual ~PatientDisk() = default;
    /// Asks beside the program, on a disk of its own. Until the answer is there, `stillWaits` is called again
    /// and again; false when it gave the answer up. The question may be at work later than this returns, so
    /// it owns all that it uses.
    virtual bool Ask(DiskQuestion question, const StillWaits& stillWaits) = 0;
};

/// Who asks a question: whether it was answered.
using DiskAsker = std::function<bool(const DiskQuestion&)>;

/// The answer to a question; nothing when it was given up.
template <class AnswerT, class QuestionT>
std::optional<AnswerT> AnswerTo(const DiskAsker& ask, QuestionT question) {
    const auto answer = std::make_shared<std::optional<AnswerT>>();
    const bool answered =
        ask([answer, question = std::move(question)](FileSystem& files, const StillWaits& stillWaits) {
            *answer = question(files, stillWaits);
        });
    if (!answered) return std::nullopt;
    return std::move(*answer);
}

/// What a question finds part by part, as far as it came while it was waited for. It hands over each part,
/// and ends when that returns false.
template <class PartT, class QuestionT>
std::vector<PartT> PartsSoFar(const DiskAsker& ask, QuestionT question) {
    // It is read while more parts may come.
    struct Found {
        std::mutex mutex;
        std::vector<PartT> parts;
    };
    const auto found = std::make_shared<Found>();
    ask([found, question = std::move(question)](FileSystem& files, const StillWaits& stillWaits) {
        question(files, [&](PartT part) {
            {
                const std::lock_guard lock(found->mutex);
                found->parts.push_back(std::move(part));
            }
            return stillWaits();
        });
    });
    const std::lock_guard lock(found->mutex);
    return std::move(found->parts);
}

/// A question about one path.
using PathQuestionOfDisk = std::function<bool(const FileSystem&, const Text& path)>;

/// What the disk answers about some paths, one after the other, until nobody waits for it any more. Nothing
/// for those that it hasn't come to by then.
std::vector<std::optional<bool>> AnswersSoFar(const DiskAsker& ask, const std::vector<Text>& paths,
                                              const PathQuestionOfDisk& question);

} // namespace korvane
