#include "platform/PatientDisk.h"

#include <algorithm>

namespace korvane {

std::vector<std::optional<bool>> AnswersSoFar(const DiskAsker& ask, const std::vector<Text>& paths,
                                              const PathQuestionOfDisk& question) {
    const auto known =
        PartsSoFar<std::optional<bool>>(ask, [paths, question](const FileSystem& files, const auto& take) {
            for (const Text& path : paths)
                if (!take(question(files, path))) return;
        });
    std::vector<std::optional<bool>> answers(paths.size());
    std::ranges::copy(known, answers.begin());
    return answers;
}

} // namespace korvane
