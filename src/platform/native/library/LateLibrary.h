#pragma once

namespace korvane {

/// A shared library of the system that is loaded when a function of it is first asked for. It stays until the
/// program ends.
class LateLibrary {
public:
    /// The name is the one by which the system finds the library. It has to live as long as this object.
    explicit LateLibrary(const char* name) : name_(name) {}

    /// Where the function is; nullptr when the library or the function isn't there. Any thread may call this.
    void* Find(const char* function) const;

private:
    const char* name_;
};

} // namespace korvane
