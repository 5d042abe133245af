#pragma once

namespace korvane {

/// Keeps others from a secret that the program has in its memory.
class SecretHolder {
public:
    virtual ~SecretHolder() = default;
    /// There is one from now on.
    virtual void Hold() = 0;
};

} // namespace korvane
