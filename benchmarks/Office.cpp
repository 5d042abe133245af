#include "Office.h"

#include <sys/resource.h>

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <cstdio>
#include <cstdlib>

namespace korvane::bench {

namespace {

const QString kProgram = "soffice";

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

/// The processor time of all processes that were started and have ended.
double ChildSeconds() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
}

} // namespace

Office::Office() {
    Convert("{\\rtf1 }");
}

bool Office::Installed() {
    return !QStandardPaths::findExecutable(kProgram).isEmpty();
}

Times Office::ReadAsText(const std::string& rtf, int rounds) {
    Times times;
    for (int round = 0; round < rounds; ++round) {
        const double before = ChildSeconds();
        times.Add([&] { Convert(rtf); });
        times.processor.back() = ChildSeconds() - before;
    }
    return times;
}

void Office::Convert(const std::string& rtf) const {
    QFile file(folder_.filePath("letter.rtf"));
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(rtf.data(), static_cast<qint64>(rtf.size())) >= 0;
    file.close();
    const QString text = folder_.filePath("letter.txt");
    QFile::remove(text);
    QProcess office;
    office.start(kProgram,
                 {"-env:UserInstallation=file://" + folder_.filePath("profile"), "--headless", "--norestore",
                  "--convert-to", "txt:Text (encoded):UTF8", "--outdir", folder_.path(), file.fileName()});
    constexpr int kPatience = 120'000;
    if (!written || !office.waitForFinished(kPatience) || !QFile::exists(text)) {
        std::fprintf(stderr, "LibreOffice made no text.\n");
        std::exit(1);
    }
}

} // namespace korvane::bench
