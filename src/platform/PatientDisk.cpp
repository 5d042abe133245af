#include "platform/PatientDisk.h"

#include <mutex>

namespace korvane {

namespace {

/// What has been answered, which is read while more answers may come.
struct Answers {
    std::mutex mutex;
    std::vector<std::optional<bool>> known;
};

} // namespace

std::vector<std::optional<bool>> AnswersSoFar(const DiskAsker& ask, const std::vector<Text>& paths,
                                              const PathQuestionOfDisk& question) {
    const auto answers = std::make_shared<Answers>();
    answers->known.resize(paths.size());
    ask([answers, paths, question](const FileSystem& files, const StillWaits& stillWaits) {
        for (std::size_t index = 0; index < paths.size() && stillWaits(); ++index) {
            const bool answer = question(files, paths[index]);
            const std::lock_guard lock(answers->mutex);
            answers->known[index] = answer;
        }
    });
    const std::lock_guard lock(answers->mutex);
    return answers->known;
}

} // namespace korvane
