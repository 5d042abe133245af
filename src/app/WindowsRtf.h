#pragma once

#include <memory>

namespace korvane {

/// While it lives, other programs of Windows get formatted texts as RTF. By itself Qt offers them under a
/// name that only programs with Qt know. It is made when the application is there.
class WindowsRtf {
public:
    WindowsRtf();
    WindowsRtf(const WindowsRtf&) = delete;
    WindowsRtf& operator=(const WindowsRtf&) = delete;
    ~WindowsRtf();

private:
    class Converter;
    std::unique_ptr<Converter> converter_;
};

} // namespace korvane
