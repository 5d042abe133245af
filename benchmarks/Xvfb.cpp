#include "Xvfb.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace korvane::bench {

Xvfb::Xvfb() {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) std::exit(1);
    id_ = fork();
    if (id_ == 0) {
        close(ends[0]);
        const std::string descriptor = std::to_string(ends[1]);
        execlp("Xvfb", "Xvfb", "-displayfd", descriptor.c_str(), "-screen", "0", "1280x900x24", "-nolisten",
               "tcp", "-noreset", nullptr);
        _exit(127);
    }
    close(ends[1]);
    int number = 0;
    FILE* const told = fdopen(ends[0], "r");
    if (told == nullptr || std::fscanf(told, "%d", &number) != 1) {
        std::fprintf(stderr, "Xvfb didn't start\n");
        std::exit(1);
    }
    std::fclose(told);
    setenv("DISPLAY", (":" + std::to_string(number)).c_str(), 1);
}

Xvfb::~Xvfb() {
    kill(id_, SIGTERM);
    waitpid(id_, nullptr, 0);
}

} // namespace korvane::bench
