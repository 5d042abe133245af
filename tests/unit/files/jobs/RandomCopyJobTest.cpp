// Jobs by chance on disks in memory that are soon full and often fail. What holds for every one of them: no
// byte of a file that wasn't to be overwritten is lost, the count is right, and in a move nothing is in
// neither place.

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "files/jobs/CopyJob.h"
#include "platform/FileSystem.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <random>
#include <set>

namespace korvane {
namespace {

/// How many jobs to run and the number of the first, in place of the few that every run of the tests makes.
constexpr const char* kCountVariable = "KORVANE_RANDOM_JOBS";
constexpr const char* kFirstVariable = "KORVANE_RANDOM_FIRST";
constexpr unsigned kUsualCount = 600;

constexpr FileStep kSteps[] = {FileStep::OpenToRead, FileStep::OpenToWrite, FileStep::Write,
                               FileStep::Close,      FileStep::Remove,      FileStep::Rename};

/// The names of a folder's files with their bytes, also of those to which links lead.
using Contents = std::map<Text, std::string>;

class RandomJob {
public:
    explicit RandomJob(unsigned seed) : random_(seed) {
        if (Style().HasDrives()) {
            files_.AddDrive(u'D');
            Prepare(u"C:\\from", OneIn(2) ? u"D:\\to" : u"C:\\to");
        } else {
            Prepare(u"/from", u"/to");
        }
    }

    void Run() {
        const Contents source = ContentsOf(from_);
        const Contents target = ContentsOf(to_);
        CopyJob job(app_, {.move = move_, .sourceFolder = from_, .items = items_, .targetFolder = to_}, run_,
                    {[this] { Yield(); }, [this] { Answer(); }});
        Order();
        while (job.Step()) {
        }
        Check(source, target);
    }

    std::string Trace() const { return trace_; }

private:
    /// All boxes are closed by whoever comes by.
    class Bystander final : public MessageBoxes {
    public:
        korvane::Answer Show(const Message&) override { return korvane::Answer::Ok; }
    };

    PathStyle Style() const { return style_; }
    int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }
    bool OneIn(int times) { return Below(times) == 0; }
    Text PathOf(const Text& folder, const Text& name) const { return Style().JoinPath(folder, name); }

    void Prepare(const Text& from, const Text& to) {
        from_ = from;
        to_ = to;
        move_ = OneIn(2);
        run_.UpdateOnly = OneIn(4) ? 1 : 0;
        files_.AddDir(from);
        files_.AddDir(to);
        for (int number = Below(6); number >= 0; --number)
            AddSource(u"f" + NumberText(number));
        if (OneIn(3)) items_.emplace_back(u"gone");
        if (OneIn(3)) items_.emplace_back(u" ");
        // The source's disk holds what is on it; the target's takes little or much more.
        files_.SetQuota(BytesOn(to) + Below(12) * 1000, to);
    }

    void AddSource(const Text& name) {
        items_.push_back(name);
        const Text path = PathOf(from_, name);
        const Text other = PathOf(to_, name);
        AddFile(path);
        if (OneIn(2)) AddFile(other);
        if (OneIn(6)) files_.SetFileReadOnly(path);
        if (OneIn(6)) files_.SetFileReadOnly(other);
        if (Style().HasDrives() || !OneIn(4)) return;
        elsewhere_[name] = SomeBytes();
        files_.AddFile(u"/elsewhere/" + name, elsewhere_[name]);
        files_.Erase(OneIn(2) ? path : other);
        files_.AddLink(files_.FileExists(path) ? other : path, u"/elsewhere/" + name);
        if (!OneIn(4)) return;
        files_.Erase(u"/elsewhere/" + name);
        elsewhere_.erase(name);
    }

    void AddFile(const Text& path) {
        files_.AddFile(path, SomeBytes());
        files_.SetModified(path, {2026, 1, 1, 0, Below(3), Below(60)});
    }

    std::string SomeBytes() {
        static constexpr int kSizes[] = {0, 1, 700, 1024, 1025, 4000};
        const auto size = static_cast<std::size_t>(kSizes[Below(6)]);
        return std::string(size, static_cast<char>('a' + Below(26))) + std::to_string(++serial_);
    }

    std::int64_t BytesOn(const Text& folder) {
        files_.SetQuota(1'000'000, folder);
        return 1'000'000 - files_.Volume(folder)->freeBytes;
    }

    void Order() {
        for (int number = Below(4); number > 0; --number)
            files_.Faults().FailNth(kSteps[Below(6)], 1 + Below(6));
        stopAt_ = OneIn(3) ? Below(12) : -1;
    }

    void Yield() {
        if (stopAt_-- == 0) (OneIn(2) ? run_.LastKey : run_.CancelPressed) = 27;
        if (run_.CancelPressed != 0) run_.CancelPressed = 1;
    }

    void Answer() {
        switch (Below(5)) {
        case 0:
            return Allow(run_.AskTarget);
        case 1:
            run_.YesToAll = 1;
            return Allow(run_.AskTarget);
        case 2:
            run_.NoToAll = 1;
            return;
        case 3:
            run_.AskTarget += u"2";
            run_.CopyThisFile = 1;
            return;
        default:
            return;
        }
    }

    void Allow(const Text& target) {
        run_.CopyThisFile = 1;
        allowed_.insert(target);
        trace_ += "allow " + ToUtf8(target) + "; ";
    }

    Contents ContentsOf(const Text& folder) const {
        Contents contents;
        for (const Text& name : files_.FileNames(folder, u"*"))
            contents[name] = files_.Contents(PathOf(folder, name)).value_or("(none)");
        return contents;
    }

    bool MayBeOverwritten(const Text& path) const {
        return run_.UpdateOnly == 1 || run_.YesToAll == 1 || allowed_.contains(path);
    }

    void Check(const Contents& sourceBefore, const Contents& targetBefore) {
        const Contents source = ContentsOf(from_);
        const Contents target = ContentsOf(to_);
        int copies = 0;
        for (const auto& [name, bytes] : sourceBefore) {
            const bool stays = source.contains(name) && source.at(name) == bytes;
            EXPECT_TRUE(move_ || stays) << "a copy changed its source " << ToUtf8(name);
            EXPECT_TRUE(stays || IsIn(target, name, bytes)) << ToUtf8(name) << " is in neither place";
        }
        for (const auto& [name, bytes] : targetBefore) {
            const bool stays = target.contains(name) && target.at(name) == bytes;
            EXPECT_TRUE(stays || MayBeOverwritten(PathOf(to_, name))) << ToUtf8(name) << " was lost";
            const bool replaced = target.contains(name) && sourceBefore.contains(name) &&
                                  target.at(name) == sourceBefore.at(name);
            const bool wentFirst = !target.contains(name);
            EXPECT_TRUE(stays || replaced || wentFirst) << "half of " << ToUtf8(name);
        }
        for (const auto& [name, bytes] : target) {
            if (targetBefore.contains(name) && targetBefore.at(name) == bytes) continue;
            ++copies;
            EXPECT_TRUE(IsCopy(sourceBefore, name, bytes)) << ToUtf8(name) << " isn't whole";
        }
        EXPECT_EQ(run_.FilesCopied, copies);
        CheckElsewhere();
        EXPECT_FALSE(files_.FileExists(PathOf(to_, u".korvane-copy")));
    }

    /// Under its own name, or the one that the user gave it.
    static bool IsIn(const Contents& target, const Text& name, const std::string& bytes) {
        for (const Text& each : {name, name + u"2"})
            if (target.contains(each) && target.at(each) == bytes) return true;
        return false;
    }

    static bool IsCopy(const Contents& source, Text name, const std::string& bytes) {
        if (!source.contains(name) && name.ends_with(u'2')) name.pop_back();
        return source.contains(name) && source.at(name) == bytes;
    }

    /// What links lead to was to be left alone.
    void CheckElsewhere() {
        for (const auto& [name, bytes] : elsewhere_)
            EXPECT_EQ(files_.Contents(u"/elsewhere/" + name), bytes)
                << ToUtf8(name) << " was written through a link";
    }

    std::mt19937 random_;
    PathStyle style_ = OneIn(2) ? PathStyle::Windows : PathStyle::Posix;
    MemoryClock clock_;
    MemoryFileSystem files_{style_, clock_};
    Bystander boxes_;
    MemoryClipboard clipboard_;
    MemoryScreen screen_;
    MemoryShell shell_;
    MemoryInstanceChannel instance_;
    ScriptedUser nobody_;
    App app_{{files_, boxes_, clipboard_, clock_, screen_, shell_, instance_, nobody_, nullptr}};
    CopyMoveRun run_;
    Text from_;
    Text to_;
    bool move_ = false;
    std::vector<Text> items_;
    std::set<Text> allowed_;
    Contents elsewhere_;
    int serial_ = 0;
    int stopAt_ = -1;
    std::string trace_;
};

unsigned FromEnvironment(const char* variable, unsigned usual) {
    const char* const value = std::getenv(variable);
    return value == nullptr ? usual : static_cast<unsigned>(std::strtoul(value, nullptr, 10));
}

TEST(RandomCopyJobTest, LosesNothingAndCountsRight) {
    const unsigned first = FromEnvironment(kFirstVariable, 1);
    const unsigned count = FromEnvironment(kCountVariable, kUsualCount);
    for (unsigned seed = first; seed < first + count && !HasFailure(); ++seed) {
        RandomJob job(seed);
        job.Run();
        if (HasFailure()) ADD_FAILURE() << "job " << seed << ": " << job.Trace();
    }
}

} // namespace
} // namespace korvane
