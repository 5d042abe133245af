#include "testing/FileFaults.h"

#include <algorithm>

namespace korvane {

void FileFaults::FailNth(FileStep step, int nth, TextView errorText) {
    faults_.push_back({step, nth, Text(errorText)});
}

void FileFaults::FailNthOfAll(int nth, Lasting lasting) {
    allLeft_ = nth;
    lasting_ = lasting;
}

std::optional<Text> FileFaults::Strike(FileStep step) {
    if (allLeft_) {
        --*allLeft_;
        if (*allLeft_ == 0 || (*allLeft_ < 0 && lasting_ == Lasting::EverAfter)) return u"Input/output error";
    }
    for (Fault& fault : faults_)
        if (fault.step == step) --fault.stepsLeft;
    const auto due = std::find_if(faults_.begin(), faults_.end(), [step](const Fault& fault) {
        return fault.step == step && fault.stepsLeft <= 0;
    });
    if (due == faults_.end()) return std::nullopt;
    Text errorText = std::move(due->errorText);
    faults_.erase(due);
    return errorText;
}

} // namespace korvane
