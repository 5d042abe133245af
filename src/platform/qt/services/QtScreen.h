#pragma once

#include "platform/Screen.h"

#include <QElapsedTimer>

namespace korvane {

class QtScreen final : public Screen {
public:
    Rect WorkArea() const override;
    bool IsDark() const override;
    void SetPointer(Pointer pointer) override;
    void ProcessMessages() override;
    void Yield() override;

private:
    Pointer pointer_ = Pointer::Default;
    QElapsedTimer sinceYield_;
};

} // namespace korvane
