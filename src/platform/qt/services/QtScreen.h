#pragma once

#include "platform/Screen.h"

namespace korvane {

class QtScreen final : public Screen {
public:
    Rect WorkArea() const override;
    bool IsDark() const override;
    void SetPointer(Pointer pointer) override;
    void ProcessMessages() override;

private:
    Pointer pointer_ = Pointer::Default;
};

} // namespace korvane
