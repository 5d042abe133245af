#pragma once

namespace korvane {

/// A field whose text isn't known to the program until it is committed.
class UnfinishedField {
public:
    virtual void Commit() = 0;

protected:
    ~UnfinishedField() = default;
};

/// Commits the field that has the keyboard, if it is such a field, as a click somewhere else would. It is
/// called before a command runs, so that the command works with the text that the user sees.
void FinishTyping();

} // namespace korvane
