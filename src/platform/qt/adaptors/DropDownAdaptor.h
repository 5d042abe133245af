#pragma once

#include "controls/DropDown.h"
#include "platform/qt/base/ControlAdaptor.h"

#include <QComboBox>

namespace korvane {

class DropDownAdaptor : public AdaptorOf<DropDown, QComboBox> {
public:
    DropDownAdaptor(DropDown& field, QComboBox& widget);

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;

private:
    void WriteItems();
    void WriteText();
};

} // namespace korvane
