#include "document/package/Package.h"

#include "document/package/Xml.h"

#include <zip.h>

#include <algorithm>

namespace korvane::doc {

namespace {

constexpr char kRelationsFolder[] = "_rels/";
/// All parts together may unpack to so many times the most bytes of a file.
constexpr std::size_t kUnpackedFiles = 4;

std::string FolderOf(const std::string& part) {
    const std::size_t slash = part.rfind('/');
    return slash == std::string::npos ? std::string() : part.substr(0, slash + 1);
}

/// The name of the part's file of relations.
std::string RelationsOf(const std::string& part) {
    const std::string folder = FolderOf(part);
    return folder + kRelationsFolder + part.substr(folder.size()) + ".rels";
}

/// The name of the part to which a target leads. The target was found in a part of the folder.
std::string Resolved(const std::string& folder, std::string_view target) {
    std::string path = target.starts_with('/') ? std::string(target.substr(1)) : folder + std::string(target);
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string part = path.substr(begin, end - begin);
        if (part == ".." && !parts.empty())
            parts.pop_back();
        else if (part != "." && part != ".." && !part.empty())
            parts.push_back(part);
        begin = end + 1;
    }
    std::string name;
    for (const std::string& part : parts)
        name += name.empty() ? part : '/' + part;
    return name;
}

/// How large the archive says that a part is; 0 if it doesn't say.
std::size_t SizeToldOf(zip_t* archive, zip_uint64_t index) {
    zip_stat_t stat;
    zip_stat_init(&stat);
    const bool told = zip_stat_index(archive, index, 0, &stat) == 0 && (stat.valid & ZIP_STAT_SIZE) != 0;
    return told ? static_cast<std::size_t>(stat.size) : 0;
}

struct CloseFile {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

} // namespace

Package::Package(std::string_view bytes, const Limits& limits) : left_(limits.bytes * kUnpackedFiles) {
    if (bytes.size() > limits.bytes) {
        overLimit_ = true;
        return;
    }
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* const source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
    if (source != nullptr) {
        archive_ = zip_open_from_source(source, ZIP_RDONLY, &error);
        if (archive_ == nullptr) zip_source_free(source);
    }
    zip_error_fini(&error);
}

Package::Package(const PackageParts& parts, const Limits& limits)
    : parts_(&parts), left_(limits.bytes * kUnpackedFiles) {}

Package::~Package() {
    if (archive_ != nullptr) zip_discard(archive_);
}

std::optional<std::string> Package::Part(const std::string& name) {
    if (parts_ == nullptr) return Unpacked(name);
    const auto found = std::ranges::find(*parts_, name, &PackagePart::name);
    return found == parts_->end() ? std::nullopt : std::optional(found->bytes);
}

std::optional<std::string> Package::Unpacked(const std::string& name) {
    if (archive_ == nullptr) return std::nullopt;
    const zip_int64_t index = zip_name_locate(archive_, name.c_str(), ZIP_FL_NOCASE);
    if (index < 0) return std::nullopt;
    const std::size_t told = SizeToldOf(archive_, static_cast<zip_uint64_t>(index));
    overLimit_ = overLimit_ || told > left_;
    if (told > left_) return std::nullopt;
    const std::unique_ptr<zip_file_t, CloseFile> file(
        zip_fopen_index(archive_, static_cast<zip_uint64_t>(index), 0));
    if (!file) return std::nullopt;
    // The size that the archive tells may be wrong, so what comes out is counted.
    std::string bytes;
    bytes.reserve(told);
    char buffer[1 << 16];
    while (true) {
        const zip_int64_t read = zip_fread(file.get(), buffer, sizeof buffer);
        if (read < 0) return std::nullopt;
        if (read == 0) return bytes;
        if (static_cast<std::size_t>(read) > left_) {
            overLimit_ = true;
            return std::nullopt;
        }
        left_ -= static_cast<std::size_t>(read);
        bytes.append(buffer, static_cast<std::size_t>(read));
    }
}

std::vector<Package::Relation> Package::Relations(const std::string& part) {
    std::vector<Relation> relations;
    const std::optional<std::string> bytes = Part(RelationsOf(part));
    if (!bytes) return relations;
    const std::string folder = FolderOf(part);
    XmlHandlers handlers;
    handlers.open = [&](std::string_view name, const XmlAttributes& attributes) {
        if (name != "Relationship") return;
        const std::string_view type = attributes.Get("Type");
        const std::string_view target = attributes.Get("Target");
        const bool external = attributes.Get("TargetMode") == "External";
        relations.push_back({std::string(attributes.Get("Id")), std::string(type.substr(type.rfind('/') + 1)),
                             external ? std::string(target) : Resolved(folder, target), external});
    };
    handlers.close = [](std::string_view) {};
    ReadXml(*bytes, handlers);
    return relations;
}

std::string Package::MainPart() {
    const std::vector<Relation> relations = Relations("");
    const auto found = std::ranges::find(relations, "officeDocument", &Relation::type);
    return found == relations.end() ? std::string() : found->target;
}

} // namespace korvane::doc
