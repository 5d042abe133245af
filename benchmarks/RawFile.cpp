#include "RawFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace korvane::bench {

namespace {

[[noreturn]] void Fail(const std::string& path) {
    std::perror(path.c_str());
    std::exit(1);
}

} // namespace

RawFile ReadRaw(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status {};
    if (file < 0 || fstat(file, &status) != 0) Fail(path);
    RawFile raw;
    raw.size = static_cast<std::size_t>(status.st_size);
    raw.bytes = std::make_unique_for_overwrite<char[]>(raw.size);
    if (read(file, raw.bytes.get(), raw.size) != status.st_size) Fail(path);
    close(file);
    return raw;
}

void WriteRaw(const std::string& path, std::string_view bytes) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0 || write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) Fail(path);
    close(file);
}

} // namespace korvane::bench
