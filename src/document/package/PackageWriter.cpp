#include "document/package/Package.h"

#include <zip.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <utility>

namespace korvane::doc {

namespace {

/// The first of January 1980, the first day that an archive can tell.
constexpr zip_uint16_t kFixedDate = 1 << 5 | 1;

/// A part while it is packed.
class Packing {
public:
    Packing(std::size_t size, const std::function<NextPiece()>& begin) : size_(size), begin_(begin) {}

    void Begin() {
        next_ = begin_();
        piece_ = {};
    }
    std::size_t Take(char* to, std::size_t most) {
        if (piece_.empty()) piece_ = next_();
        const std::size_t length = piece_.copy(to, most);
        piece_.remove_prefix(length);
        return length;
    }
    std::size_t Size() const { return size_; }

    /// What making the part has thrown. It can't pass through the archive's calls.
    std::exception_ptr thrown;

private:
    std::size_t size_;
    const std::function<NextPiece()>& begin_;
    NextPiece next_;
    std::string_view piece_;
};

zip_int64_t TellSize(const Packing& packing, void* data, zip_uint64_t length) {
    if (length < sizeof(zip_stat_t)) return -1;
    zip_stat_t& stat = *static_cast<zip_stat_t*>(data);
    zip_stat_init(&stat);
    stat.size = packing.Size();
    stat.valid |= ZIP_STAT_SIZE;
    return sizeof stat;
}

/// What an archive may ask of a part.
constexpr zip_int64_t kAnswered =
    ZIP_SOURCE_MAKE_COMMAND_BITMASK(ZIP_SOURCE_OPEN) | ZIP_SOURCE_MAKE_COMMAND_BITMASK(ZIP_SOURCE_READ) |
    ZIP_SOURCE_MAKE_COMMAND_BITMASK(ZIP_SOURCE_CLOSE) | ZIP_SOURCE_MAKE_COMMAND_BITMASK(ZIP_SOURCE_STAT) |
    ZIP_SOURCE_MAKE_COMMAND_BITMASK(ZIP_SOURCE_ERROR) | ZIP_SOURCE_MAKE_COMMAND_BITMASK(ZIP_SOURCE_FREE);

/// Answers what the archive asks of a part.
zip_int64_t Answer(void* state, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    Packing& packing = *static_cast<Packing*>(state);
    try {
        switch (command) {
        case ZIP_SOURCE_SUPPORTS:
            return kAnswered;
        case ZIP_SOURCE_STAT:
            return TellSize(packing, data, length);
        case ZIP_SOURCE_OPEN:
            packing.Begin();
            return 0;
        case ZIP_SOURCE_READ:
            return static_cast<zip_int64_t>(packing.Take(static_cast<char*>(data), length));
        case ZIP_SOURCE_ERROR: {
            zip_error_t error;
            zip_error_init_with_code(&error, ZIP_ER_MEMORY);
            return zip_error_to_data(&error, data, length);
        }
        default:
            return 0;
        }
    } catch (...) {
        packing.thrown = std::current_exception();
        return -1;
    }
}

struct FreeSource {
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};
using Source = std::unique_ptr<zip_source_t, FreeSource>;

struct DiscardArchive {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, DiscardArchive>;

/// A place in memory for an archive.
Source EmptySource() {
    zip_error_t error;
    zip_error_init(&error);
    Source source(zip_source_buffer_create(nullptr, 0, 0, &error));
    zip_error_fini(&error);
    return source;
}

/// A new archive in the source; nothing if there can't be one.
Archive ArchiveIn(zip_source_t* target) {
    if (target == nullptr) return nullptr;
    Archive archive(zip_open_from_source(target, ZIP_TRUNCATE, nullptr));
    // The archive gives its hold of the target up when it closes, and the bytes are read after that.
    if (archive != nullptr) zip_source_keep(target);
    return archive;
}

bool AddPart(zip_t* archive, const std::string& name, Packing& packing) {
    Source source(zip_source_function(archive, Answer, &packing));
    if (source == nullptr) return false;
    const zip_int64_t index = zip_file_add(archive, name.c_str(), source.get(), ZIP_FL_ENC_UTF_8);
    if (index < 0) return false;
    static_cast<void>(source.release());
    return zip_file_set_dostime(archive, static_cast<zip_uint64_t>(index), 0, kFixedDate, 0) == 0;
}

/// Gives all bytes of the source away.
bool Give(zip_source_t* source, const PieceTaker& take) {
    if (zip_source_open(source) != 0) return false;
    std::string piece(kPieceOfText, '\0');
    zip_int64_t read = 0;
    while ((read = zip_source_read(source, piece.data(), piece.size())) > 0)
        take(std::string_view(piece).substr(0, static_cast<std::size_t>(read)));
    zip_source_close(source);
    return read == 0;
}

} // namespace

void PackageWriter::Add(std::string name, std::string bytes) {
    const auto shared = std::make_shared<const std::string>(std::move(bytes));
    AddMade(std::move(name), shared->size(), [shared] {
        return [shared, given = false]() mutable {
            return std::exchange(given, true) ? std::string_view() : std::string_view(*shared);
        };
    });
}

void PackageWriter::AddMade(std::string name, std::size_t size, std::function<NextPiece()> begin) {
    parts_.push_back({std::move(name), size, std::move(begin)});
}

bool PackageWriter::Write(const PieceTaker& take) const {
    const Source target = EmptySource();
    std::vector<std::unique_ptr<Packing>> packings;
    Archive archive = ArchiveIn(target.get());
    if (archive == nullptr) return false;
    for (const MadePart& part : parts_) {
        packings.push_back(std::make_unique<Packing>(part.size, part.begin));
        if (!AddPart(archive.get(), part.name, *packings.back())) return false;
    }
    if (zip_close(archive.get()) == 0) {
        static_cast<void>(archive.release());
        return Give(target.get(), take);
    }
    for (const auto& packing : packings)
        if (packing->thrown) std::rethrow_exception(packing->thrown);
    return false;
}

std::string PackageWriter::Write() const {
    std::string bytes;
    const bool whole = Write([&bytes](std::string_view piece) { bytes += piece; });
    return whole ? bytes : std::string();
}

PackageParts PackageWriter::Parts() const {
    PackageParts parts;
    for (const MadePart& part : parts_) {
        parts.push_back({part.name, {}});
        const NextPiece next = part.begin();
        for (std::string_view piece = next(); !piece.empty(); piece = next())
            parts.back().bytes += piece;
    }
    return parts;
}

} // namespace korvane::doc
