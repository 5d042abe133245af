#include "tbx/OneFileSystem.h"

namespace korvane {

class OneFileSystem::Writer final : public FileWriter {
public:
    explicit Writer(std::string& written) : written_(written) { written_.clear(); }

    bool Write(std::string_view bytes) override {
        written_ += bytes;
        return true;
    }
    bool Close() override { return true; }

private:
    std::string& written_;
};

std::optional<SharedBytes> OneFileSystem::ReadAll(TextView path) {
    return FileExists(path) ? bytes_ : std::nullopt;
}

std::unique_ptr<FileWriter> OneFileSystem::OpenRaw(TextView) {
    return std::make_unique<Writer>(written_);
}

bool OneFileSystem::Remove(TextView path) {
    if (!FileExists(path)) return false;
    bytes_.reset();
    return true;
}

std::optional<std::int64_t> OneFileSystem::Size(TextView path) const {
    if (!FileExists(path)) return std::nullopt;
    return static_cast<std::int64_t>(bytes_->size);
}

} // namespace korvane
