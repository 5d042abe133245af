#pragma once

#include "platform/PatientDisk.h"

#include <chrono>
#include <memory>
#include <vector>

namespace korvane {

/// Asks in threads. One that the disk keeps for ever is left alone, and another one asks the next question.
class NativePatientDisk final : public PatientDisk {
public:
    /// Each thread has a disk of its own, which is made in it.
    using MakeDisk = std::function<std::unique_ptr<FileSystem>()>;

    /// A question that is between two steps when it is given up has so much time to end with what it has.
    static constexpr std::chrono::milliseconds kForTheLastStep{100};

    explicit NativePatientDisk(MakeDisk makeDisk, std::chrono::milliseconds forTheLastStep = kForTheLastStep);
    NativePatientDisk(const NativePatientDisk&) = delete;
    NativePatientDisk& operator=(const NativePatientDisk&) = delete;
    ~NativePatientDisk() override;

    bool Ask(DiskQuestion question, const StillWaits& stillWaits) override;

private:
    class Asker;

    std::shared_ptr<Asker> TakeIdle();

    MakeDisk makeDisk_;
    std::chrono::milliseconds forTheLastStep_;
    std::vector<std::shared_ptr<Asker>> idle_;
};

} // namespace korvane
