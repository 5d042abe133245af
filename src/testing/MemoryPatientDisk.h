#pragma once

#include "platform/PatientDisk.h"
#include "testing/MemoryClock.h"

namespace korvane {

/// Answers at once, or not before the test says so. Time goes by while it doesn't.
class MemoryPatientDisk final : public PatientDisk {
public:
    /// Both outlive the object.
    MemoryPatientDisk(FileSystem& files, MemoryClock& clock) : files_(files), clock_(clock) {}

    bool Ask(DiskQuestion question, const StillWaits& stillWaits) override;

    /// Answers so many more questions, and no other one until `Release`.
    void HoldAfter(int questions) { answers_ = questions; }
    void Hold() { HoldAfter(0); }
    void Release() { answers_ = kAll; }
    /// The questions so far.
    int Asked() const { return asked_; }

private:
    static constexpr int kAll = -1;

    FileSystem& files_;
    MemoryClock& clock_;
    int answers_ = kAll;
    int asked_ = 0;
};

} // namespace korvane
