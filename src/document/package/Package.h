#pragma once

#include "document/model/Pieces.h"
#include "document/model/Reading.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct zip;

namespace korvane::doc {

struct PackagePart {
    std::string name;
    std::string bytes;

    bool operator==(const PackagePart&) const = default;
};
using PackageParts = std::vector<PackagePart>;

/// A file of the Open Packaging Conventions: a ZIP archive of parts that refer to each other.
class Package {
public:
    struct Relation {
        std::string id;
        /// The last word of the relation's type, as "image".
        std::string type;
        /// The part's name without a "/" at the beginning, or an address outside.
        std::string target;
        bool external = false;
    };

    /// The bytes outlive the package. A part that unpacks to more than the limit is left out.
    Package(std::string_view bytes, const Limits& limits);
    /// Parts that are unpacked already. They outlive the package.
    Package(const PackageParts& parts, const Limits& limits);
    ~Package();
    Package(const Package&) = delete;
    Package& operator=(const Package&) = delete;

    /// Whether the bytes are an archive.
    bool IsOpen() const { return archive_ != nullptr || parts_ != nullptr; }
    /// The bytes of the part; nothing if it isn't there, is damaged or is too large.
    std::optional<std::string> Part(const std::string& name);
    /// What the part refers to; the package itself for an empty name.
    std::vector<Relation> Relations(const std::string& part);
    /// The part to which the package refers as its document.
    std::string MainPart();
    bool OverLimit() const { return overLimit_; }

private:
    std::optional<std::string> Unpacked(const std::string& name);

    zip* archive_ = nullptr;
    const PackageParts* parts_ = nullptr;
    std::size_t left_;
    bool overLimit_ = false;
};

/// Gives the next piece of a part; an empty one at its end.
using NextPiece = std::function<std::string_view()>;

/// Makes a package part by part.
class PackageWriter {
public:
    void Add(std::string name, std::string bytes);
    /// A part of this size that is made while the package is written. `begin` begins it, as often as it is
    /// needed.
    void AddMade(std::string name, std::size_t size, std::function<NextPiece()> begin);
    /// Gives the bytes of the whole file, which are the same for the same parts. False when the archive can't
    /// be made.
    bool Write(const PieceTaker& take) const;
    /// All of them; none when the archive can't be made.
    std::string Write() const;
    PackageParts Parts() const;

private:
    struct MadePart {
        std::string name;
        std::size_t size;
        std::function<NextPiece()> begin;
    };

    std::vector<MadePart> parts_;
};

} // namespace korvane::doc
