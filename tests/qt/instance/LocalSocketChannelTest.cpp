#include "platform/qt/instance/LocalSocketChannel.h"

#include "platform/native/instance/HandOverProtocol.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCoreApplication>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace korvane {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

sockaddr_un Address(const fs::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.string().copy(address.sun_path, sizeof address.sun_path - 1);
    return address;
}

/// A plain socket that can break the rules of the conversation.
class RawSocket {
public:
    RawSocket() : socket_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {}
    RawSocket(const RawSocket&) = delete;
    RawSocket& operator=(const RawSocket&) = delete;
    ~RawSocket() { Close(); }

    bool Connect(const fs::path& path) {
        const sockaddr_un address = Address(path);
        return connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    }
    bool Listen(const fs::path& path) {
        const sockaddr_un address = Address(path);
        return bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
               listen(socket_, 1) == 0;
    }
    /// Accepts one connection, sends the answer, and reads until the other side closes.
    void Serve(std::string_view answer) {
        const int connection = accept(socket_, nullptr, nullptr);
        send(connection, answer.data(), answer.size(), MSG_NOSIGNAL);
        shutdown(connection, SHUT_WR);
        Drain(connection);
        close(connection);
    }
    /// Sends bytes until the other side closes. False when it closed before all were sent.
    bool Send(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t sent = send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (sent <= 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(sent));
        }
        return true;
    }
    /// Whether the other side has closed. Nothing that it sent may be unread.
    bool IsClosed() const {
        char byte = 0;
        return recv(socket_, &byte, 1, MSG_PEEK | MSG_DONTWAIT) == 0;
    }
    /// Everything that the other side sends until it closes.
    std::string ReadToEnd() { return Drain(socket_); }
    void Close() {
        if (socket_ >= 0) close(socket_);
        socket_ = -1;
    }

private:
    static std::string Drain(int socket) {
        std::string all;
        char buffer[4096];
        for (ssize_t count = 0; (count = recv(socket, buffer, sizeof buffer, 0)) > 0;)
            all.append(buffer, static_cast<std::size_t>(count));
        return all;
    }

    int socket_;
};

struct LocalSockets : testing::Test {
    /// Runs the event loop while another thread does the work.
    void While(const std::function<void()>& work) {
        std::atomic<bool> finished = false;
        std::thread thread([&] {
            work();
            finished = true;
            QCoreApplication::postEvent(&app, new QEvent(QEvent::User));
        });
        while (!finished)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        thread.join();
    }
    void RunUntil(const std::function<bool()>& condition) {
        while (!condition())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    InstanceChannel::Reception Recording() {
        return {
            [this](TextView path) { received.emplace_back(path); },
            [this] { return ++slotQuestions > slotFullFor; },
            [this] { ++activations; },
        };
    }
    std::unique_ptr<LocalSocketChannel> First(const LocalSocketChannel::Limits& limits = {}) {
        auto first = std::make_unique<LocalSocketChannel>(place, limits);
        EXPECT_FALSE(first->PreviousInstanceRuns());
        first->Listen(Recording());
        return first;
    }
    /// Hands a path over in the way a normal second start does.
    bool HandOver(TextView path) {
        LocalSocketChannel second(place);
        const bool taken = second.PreviousInstanceRuns() && second.FindReceiver() &&
                           second.WaitUntilSlotEmpty() && second.Deliver(path);
        second.ActivateRunning();
        return taken;
    }
    std::string Say(std::string_view bytes) {
        RawSocket socket;
        EXPECT_TRUE(socket.Connect(place.socket));
        socket.Send(bytes);
        return socket.ReadToEnd();
    }

    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    QCoreApplication app{argc, argv};
    TempDir dir;
    InstancePlace place{dir / "socket", dir / "lock"};
    std::vector<Text> received;
    std::atomic<int> slotQuestions = 0;
    int slotFullFor = 0;
    int activations = 0;
};

TEST_F(LocalSockets, HandAPathOver) {
    const auto first = First();
    While([&] { EXPECT_TRUE(HandOver(u"/home/ann/a b.tbx")); });
    EXPECT_THAT(received, ElementsAre(u"/home/ann/a b.tbx"));
    EXPECT_EQ(activations, 1);
}

TEST_F(LocalSockets, BelongToTheUserAlone) {
    const auto first = First();
    const auto rights = fs::status(place.socket).permissions();
    EXPECT_EQ(rights & (fs::perms::group_all | fs::perms::others_all), fs::perms::none);
}

TEST_F(LocalSockets, LetAPathWaitUntilTheSlotIsEmpty) {
    const auto first = First();
    slotFullFor = 3;
    While([&] { EXPECT_TRUE(HandOver(u"/a.tbx")); });
    EXPECT_THAT(received, ElementsAre(u"/a.tbx"));
    EXPECT_GT(slotQuestions, 3);
}

TEST_F(LocalSockets, LetAStartWaitForAFirstThatIsNotReadyYet) {
    LocalSocketChannel first(place);
    ASSERT_FALSE(first.PreviousInstanceRuns());
    std::atomic<bool> found = false;
    While([&] {
        std::thread second([&] { EXPECT_TRUE(HandOver(u"/a.tbx")); });
        RawSocket probe;
        found = probe.Connect(place.socket);
        QMetaObject::invokeMethod(&app, [&] { first.Listen(Recording()); });
        second.join();
    });
    EXPECT_TRUE(found);
    EXPECT_THAT(received, ElementsAre(u"/a.tbx"));
}

TEST_F(LocalSockets, GoOnWhileThePathIsStillBeingLoaded) {
    LocalSocketChannel first(place);
    ASSERT_FALSE(first.PreviousInstanceRuns());
    std::string order;
    first.Listen({[&](TextView) {
                      order += "load ";
                      RunUntil([&] { return activations == 1; });
                      order += "loaded";
                  },
                  [] { return true; },
                  [&] {
                      order += "activated ";
                      ++activations;
                  }});
    While([&] { EXPECT_TRUE(HandOver(u"/a.tbx")); });
    RunUntil([&] { return order.ends_with("loaded"); });
    EXPECT_EQ(order, "load activated loaded");
}

TEST_F(LocalSockets, LeadNowhereWithoutAPlace) {
    LocalSocketChannel channel(std::nullopt);
    EXPECT_FALSE(channel.PreviousInstanceRuns());
    channel.Listen(Recording());
    EXPECT_FALSE(channel.FindReceiver());
    EXPECT_FALSE(channel.WaitUntilSlotEmpty());
    EXPECT_FALSE(channel.Deliver(u"/a.tbx"));
}

TEST_F(LocalSockets, AreNotWaitedForTwice) {
    LocalSocketChannel::Limits hasty;
    hasty.startPatience = {};
    LocalSocketChannel late(place, hasty);
    {
        const StartLock held(place.lock);
        EXPECT_FALSE(late.PreviousInstanceRuns());
    }
    const auto first = First();
    EXPECT_FALSE(late.PreviousInstanceRuns());
    EXPECT_FALSE(late.FindReceiver());
}

TEST_F(LocalSockets, DoNotFindTheirOwnCopy) {
    const auto first = First();
    EXPECT_FALSE(first->PreviousInstanceRuns());
}

TEST_F(LocalSockets, AreTakenOverWhenNobodyAnswersAtThem) {
    {
        RawSocket crashed;
        ASSERT_TRUE(crashed.Listen(place.socket));
    }
    ASSERT_TRUE(fs::exists(place.socket));
    const auto first = First();
    While([&] { EXPECT_TRUE(HandOver(u"/a.tbx")); });
    EXPECT_THAT(received, ElementsAre(u"/a.tbx"));
}

TEST_F(LocalSockets, GoAwayWithTheFirst) {
    First();
    EXPECT_FALSE(fs::exists(place.socket));
}

TEST_F(LocalSockets, TellTheSecondStartThatTheFirstHasEnded) {
    auto first = First();
    LocalSocketChannel second(place);
    ASSERT_TRUE(second.PreviousInstanceRuns());
    EXPECT_TRUE(second.FindReceiver());
    first.reset();
    EXPECT_FALSE(second.WaitUntilSlotEmpty());
    EXPECT_FALSE(second.FindReceiver());
    EXPECT_FALSE(second.Deliver(u"/a.tbx"));
    second.ActivateRunning();
}

TEST_F(LocalSockets, HandNoRelativePathOver) {
    const auto first = First();
    While([&] { EXPECT_FALSE(HandOver(u"a.tbx")); });
    EXPECT_THAT(received, IsEmpty());
    EXPECT_EQ(activations, 1);
}

TEST_F(LocalSockets, AreNotTakenInByAForeignReceiver) {
    for (const std::string& answer :
         {std::string("HELLO\n"), std::string(1000, 'x'), std::string("EMPTY"), std::string()}) {
        fs::remove(place.socket);
        RawSocket foreign;
        ASSERT_TRUE(foreign.Listen(place.socket));
        std::thread server([&] { foreign.Serve(answer); });
        {
            LocalSocketChannel second(place);
            EXPECT_TRUE(second.PreviousInstanceRuns());
            EXPECT_FALSE(second.WaitUntilSlotEmpty()) << answer;
        }
        server.join();
    }
}

// Other programs that connect to the socket.

TEST_F(LocalSockets, DropWhatIsNoRequest) {
    const auto first = First();
    for (const std::string& bytes :
         {std::string("\n"), std::string("GET / HTTP/1.1\r\n\r\n"), std::string("PATH a.tbx\n"),
          std::string("PATH /a%0\n"), std::string("\0\0\0\n", 4), std::string("\xFF\xFE\n")}) {
        While([&] { EXPECT_EQ(Say(bytes), "") << bytes; });
    }
    EXPECT_THAT(received, IsEmpty());
    EXPECT_EQ(activations, 0);
    While([&] { EXPECT_TRUE(HandOver(u"/a.tbx")); });
}

TEST_F(LocalSockets, DropMegabytesWithoutALine) {
    const auto first = First();
    While([&] { EXPECT_EQ(Say(std::string(20 << 20, 'x')), ""); });
    While([&] { EXPECT_TRUE(HandOver(u"/a.tbx")); });
    EXPECT_THAT(received, ElementsAre(u"/a.tbx"));
}

TEST_F(LocalSockets, DropMegabytesBehindARequestThatWaits) {
    const auto first = First();
    slotFullFor = 5;
    While([&] { EXPECT_EQ(Say("SLOT\n" + std::string(20 << 20, 'x')), "EMPTY\n"); });
    While([&] { EXPECT_TRUE(HandOver(u"/a.tbx")); });
    EXPECT_THAT(received, ElementsAre(u"/a.tbx"));
}

TEST_F(LocalSockets, DropOtherUsersWhoGetThroughToThem) {
    const auto first = First();
    fs::permissions(dir.Path(), static_cast<fs::perms>(0711));
    fs::permissions(place.socket, static_cast<fs::perms>(0777));
    While([&] {
        // Only the administrator can become another user, and here only in this thread. For any other user
        // the conversation is answered as usual.
        constexpr long kKeep = -1;
        constexpr long kNobody = 65534;
        const bool foreign = syscall(SYS_setresuid, kKeep, kNobody, kKeep) == 0;
        RawSocket socket;
        ASSERT_TRUE(socket.Connect(place.socket));
        socket.Send("SLOT\nNO REQUEST\n");
        EXPECT_EQ(socket.ReadToEnd(), foreign ? "" : "EMPTY\n");
    });
}

TEST_F(LocalSockets, TakeOnePathOfAConnection) {
    const auto first = First();
    While([&] { EXPECT_EQ(Say("PATH /a.tbx\nPATH /b.tbx\n"), "TAKEN\n"); });
    EXPECT_THAT(received, ElementsAre(u"/a.tbx"));
}

TEST_F(LocalSockets, ForgetWhoGoesAwayInTheMiddle) {
    const auto first = First();
    for (const std::string_view bytes : {"", "PATH /a.t", "SLOT\n", "SLOT"}) {
        RawSocket socket;
        ASSERT_TRUE(socket.Connect(place.socket));
        socket.Send(bytes);
    }
    While([&] { EXPECT_TRUE(HandOver(u"/b.tbx")); });
    EXPECT_THAT(received, ElementsAre(u"/b.tbx"));
}

TEST_F(LocalSockets, DropWhoKeepsSilent) {
    const auto first = First({16, std::chrono::milliseconds(1)});
    While([&] { EXPECT_EQ(Say(""), ""); });
    While([&] { EXPECT_EQ(Say("SLOT"), ""); });
}

TEST_F(LocalSockets, DropWhoSendsByteAfterByteWithoutEnd) {
    const auto first = First({16, std::chrono::milliseconds(20)});
    While([&] {
        RawSocket socket;
        ASSERT_TRUE(socket.Connect(place.socket));
        std::size_t sent = 0;
        // Each byte is read before the next one is sent.
        for (int asked = slotQuestions; sent < hand_over::kLongestLine && socket.Send("x"); ++sent) {
            while (slotQuestions == asked && !socket.IsClosed())
                std::this_thread::yield();
            asked = slotQuestions;
        }
        EXPECT_LT(sent, hand_over::kLongestLine);
    });
}

TEST_F(LocalSockets, LetWhoWaitsForTheSlotKeepSilent) {
    const auto first = First({16, std::chrono::milliseconds(1)});
    slotFullFor = 3;
    RawSocket socket;
    ASSERT_TRUE(socket.Connect(place.socket));
    socket.Send("SLOT\n");
    While([&] { EXPECT_EQ(socket.ReadToEnd(), "EMPTY\n"); });
}

TEST_F(LocalSockets, ServeOneAfterTheOtherWhenManyCome) {
    const auto first = First({2, std::chrono::hours(1)});
    std::vector<std::unique_ptr<RawSocket>> silent;
    for (int i = 0; i < 40; ++i) {
        silent.push_back(std::make_unique<RawSocket>());
        ASSERT_TRUE(silent.back()->Connect(place.socket));
    }
    While([&] {
        std::thread second([&] { EXPECT_TRUE(HandOver(u"/a.tbx")); });
        silent.clear();
        second.join();
    });
    EXPECT_THAT(received, ElementsAre(u"/a.tbx"));
}

} // namespace
} // namespace korvane
