#pragma once

namespace korvane {

/// A field whose text reaches nobody before it is committed.
class UnfinishedField {
public:
    virtual void Commit() = 0;

protected:
    ~UnfinishedField() = default;
};

/// Commits the field with the keyboard, if it is such a one, as a click somewhere else would: a command must
/// find what the user sees.
void FinishTyping();

} // namespace korvane
