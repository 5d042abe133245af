#include "platform/native/NativePatientDisk.h"

#include "platform/FileSystem.h"

#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

namespace korvane {

namespace {

/// Between two calls of `stillWaits`.
constexpr std::chrono::milliseconds kBeat{15};

} // namespace

/// A thread that asks one question after the other. It shares this object with the one who waits, who may be
/// gone first.
class NativePatientDisk::Asker {
public:
    static std::shared_ptr<Asker> Start(const MakeDisk& makeDisk) {
        auto asker = std::make_shared<Asker>();
        asker->thread_ = std::thread([asker, makeDisk] { asker->Run(*makeDisk()); });
        return asker;
    }

    void Begin(DiskQuestion question) {
        {
            const std::lock_guard lock(mutex_);
            question_ = std::move(question);
            state_ = State::Asked;
        }
        changed_.notify_all();
    }

    bool IsDoneWithin(std::chrono::milliseconds time) {
        std::unique_lock lock(mutex_);
        return changed_.wait_for(lock, time, [this] { return state_ != State::Asked; });
    }

    bool HasAnswered() const { return answered_; }

    void GiveUp() { givenUp_ = true; }

    /// Ends the thread when its disk lets it.
    void Leave() {
        End();
        thread_.detach();
    }

    void EndAndWait() {
        End();
        thread_.join();
    }

private:
    enum class State { Idle, Asked, Ending };

    void End() {
        {
            const std::lock_guard lock(mutex_);
            state_ = State::Ending;
        }
        changed_.notify_all();
    }

    void Run(FileSystem& files) {
        std::unique_lock lock(mutex_);
        for (;;) {
            changed_.wait(lock, [this] { return state_ != State::Idle; });
            if (state_ == State::Ending) return;
            const DiskQuestion question = std::move(question_);
            lock.unlock();
            const bool answered = Answers(question, files);
            lock.lock();
            answered_ = answered;
            if (state_ == State::Asked) state_ = State::Idle;
            changed_.notify_all();
        }
    }

    /// A question that fails is one that isn't answered.
    bool Answers(const DiskQuestion& question, FileSystem& files) const {
        try {
            question(files, [this] { return !givenUp_; });
            return true;
        } catch (const std::exception&) {
            return false;
        }
    }

    std::thread thread_;
    std::mutex mutex_;
    std::condition_variable changed_;
    DiskQuestion question_;
    State state_ = State::Idle;
    bool answered_ = false;
    std::atomic<bool> givenUp_ = false;
};

NativePatientDisk::NativePatientDisk(MakeDisk makeDisk, std::chrono::milliseconds forTheLastStep)
    : makeDisk_(std::move(makeDisk)), forTheLastStep_(forTheLastStep) {}

NativePatientDisk::~NativePatientDisk() {
    for (const auto& asker : idle_)
        asker->EndAndWait();
}

std::shared_ptr<NativePatientDisk::Asker> NativePatientDisk::TakeIdle() {
    if (idle_.empty()) return Asker::Start(makeDisk_);
    auto asker = std::move(idle_.back());
    idle_.pop_back();
    return asker;
}

bool NativePatientDisk::Ask(DiskQuestion question, const StillWaits& stillWaits) {
    const std::shared_ptr<Asker> asker = TakeIdle();
    asker->Begin(std::move(question));
    bool done = asker->IsDoneWithin(kBeat);
    while (!done && stillWaits())
        done = asker->IsDoneWithin(kBeat);
    if (done) {
        idle_.push_back(asker);
        return asker->HasAnswered();
    }
    asker->GiveUp();
    done = asker->IsDoneWithin(forTheLastStep_);
    asker->Leave();
    return done && asker->HasAnswered();
}

} // namespace korvane
