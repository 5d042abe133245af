#pragma once

namespace korvane {

/// The signals with which the system asks the program to end: SIGTERM, and SIGHUP unless the program was
/// started to outlive its terminal. They no longer end the program as long as this object lives, and there
/// can be only one. The next signal after the first ends the program at once.
class EndSignals {
public:
    EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;
    ~EndSignals();

    /// A file that can be read once a signal has come, or -1 when the signals can't be watched.
    int File() const { return readEnd_; }

private:
    int readEnd_ = -1;
    int writeEnd_ = -1;
};

} // namespace korvane
