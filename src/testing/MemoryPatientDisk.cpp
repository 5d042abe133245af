#include "testing/MemoryPatientDisk.h"

#include <stdexcept>

namespace korvane {

namespace {

constexpr std::chrono::milliseconds kBeat{15};
/// A test that lets a wait go on for longer has forgotten to end it.
constexpr int kMostBeats = 10'000;

} // namespace

bool MemoryPatientDisk::Ask(DiskQuestion question, const StillWaits& stillWaits) {
    ++asked_;
    for (int beat = 0; answers_ == 0; ++beat) {
        if (beat == kMostBeats) throw std::logic_error("nobody ends the wait for the disk");
        clock_.Pass(kBeat);
        if (!stillWaits()) return false;
    }
    if (answers_ > 0) --answers_;
    question(files_, stillWaits);
    return true;
}

} // namespace korvane
