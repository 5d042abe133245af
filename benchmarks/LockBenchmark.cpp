// Measures how soon the lock covers the screen and shows its picture, and what the clock costs while it is
// open. On a display of its own.

#include "ResidentMemory.h"
#include "Times.h"
#include "Xvfb.h"
#include "context/App.h"
#include "extras/clock/frmShowTimer.h"
#include "extras/lock/frmWallpaper.h"
#include "platform/native/NativeClock.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/picture/PictureView.h"
#include "platform/qt/picture/QtPictureFiles.h"
#include "platform/qt/services/QtScreen.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"

#include <QApplication>
#include <QEventLoop>
#include <QImage>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace korvane::bench {

namespace {

constexpr int kDefaultRounds = 9;
constexpr QSize kPhotograph(4000, 3000);
constexpr QSize kGiant(16000, 12500);
constexpr int kSecondsOfClock = 20;

/// As hard to decode as a photograph: light that changes slowly, and grain.
QImage Grainy(const QSize& size, QImage::Format format) {
    QImage picture(size, format);
    std::minstd_rand random;
    const int samples = picture.depth() / 8 * size.width();
    for (int y = 0; y < size.height(); ++y) {
        uchar* line = picture.scanLine(y);
        for (int x = 0; x < samples; ++x)
            line[x] = static_cast<uchar>(96 + x / 128 % 64 + y / 64 % 64 + static_cast<int>(random() % 16));
    }
    return picture;
}

class Bench {
public:
    Bench() { app.SetPort<PictureFiles>(&pictures); }

    Text AddPicture(const char* name, const QSize& size, QImage::Format format) {
        const QString path = folder.filePath(QLatin1String(name));
        if (!Grainy(size, format).save(path)) std::exit(1);
        files.AddFile(ToText(path));
        return ToText(path);
    }

    /// Runs the event loop until everything is painted that is known.
    static void Settle(QWidget& window) {
        for (int turn = 0; turn < 3; ++turn) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        window.repaint();
    }

    static void WaitFor(PictureView& view) {
        QEventLoop loop;
        QObject::connect(&view, &PictureView::Ready, &loop, &QEventLoop::quit);
        if (!view.IsReady()) loop.exec();
        view.repaint();
    }

    QTemporaryDir folder;
    NativeClock clock;
    MemoryFileSystem files{PathStyle::Posix, clock};
    ScriptedMessageBoxes messages;
    MemoryClipboard clipboard;
    QtScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    QtFormHost forms{KorvaneForms()};
    QtPictureFiles pictures;
    App app{{files, messages, clipboard, clock, screen, shell, instance, forms, nullptr}};
};

void MeasureLock(Bench& bench, const char* what, int rounds) {
    Times covered;
    Times shown;
    for (int round = 0; round < rounds; ++round) {
        shown.Add([&] {
            auto lock = std::make_unique<frmWallpaper>(bench.app);
            covered.Add([&] {
                lock->Show();
                Bench::Settle(*bench.forms.WidgetOf(*lock));
            });
            Bench::WaitFor(*bench.forms.WidgetOf(*lock)->findChild<PictureView*>());
        });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    std::printf("%s\n\n", what);
    PrintHead();
    Print("the screen is covered", covered);
    Print("the picture is painted", shown);
    std::printf("\n");
}

void MeasureLocks(Bench& bench, int rounds) {
    Settings& settings = bench.app.Settings;
    settings.WallpaperFile = bench.AddPicture("photograph.jpg", kPhotograph, QImage::Format_RGB888);
    settings.WallpaperNumber = u"1";
    MeasureLock(bench, "JPEG of 12 megapixels, stretched", rounds);
    settings.WallpaperNumber = u"0";
    MeasureLock(bench, "JPEG of 12 megapixels in its own size", rounds);
    settings.WallpaperFile = bench.AddPicture("photograph.png", kPhotograph, QImage::Format_RGB888);
    settings.WallpaperNumber = u"1";
    MeasureLock(bench, "PNG of 12 megapixels, stretched", rounds);
    settings.WallpaperFile = bench.AddPicture("giant.jpg", kGiant, QImage::Format_Grayscale8);
    const long before = ResidentKilobytes();
    BeginPeak();
    MeasureLock(bench, "JPEG of 200 megapixels, stretched", 1);
    settings.WallpaperNumber = u"0";
    MeasureLock(bench, "JPEG of 200 megapixels in its own size", 1);
    std::printf("The giant takes %ld MB of memory at most\n\n", (PeakKilobytes() - before) / 1024);
}

void MeasureClock(Bench& bench) {
    frmShowTimer clock(bench.app);
    clock.Show();
    Bench::Settle(*bench.forms.WidgetOf(clock));
    const double before = ProcessorSeconds();
    QEventLoop loop;
    QTimer::singleShot(std::chrono::seconds(kSecondsOfClock), &loop, &QEventLoop::quit);
    loop.exec();
    std::printf("The clock takes %.2f %% of a core\n", (ProcessorSeconds() - before) / kSecondsOfClock * 100);
}

} // namespace

} // namespace korvane::bench

int main(int argc, char** argv) {
    using namespace korvane::bench;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : kDefaultRounds;
    if (rounds < 1) return 2;
    const Xvfb display;
    const QApplication application(argc, argv);
    QApplication::setStyle(new korvane::CalmStyle);
    Bench bench;
    MeasureLocks(bench, rounds);
    MeasureClock(bench);
    return 0;
}
