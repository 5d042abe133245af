#pragma once

#include "controls/lists/ListBox.h"
#include "platform/qt/base/ControlAdaptor.h"
#include "platform/qt/lists/ListBoxModel.h"

#include <QComboBox>

namespace korvane {

class ComboBoxAdaptor : public AdaptorOf<ComboBox, QComboBox>, private RowListener {
public:
    ComboBoxAdaptor(ComboBox& list, QComboBox& widget);
    ~ComboBoxAdaptor() override;

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;
    void LetGo() override { control_.SetRowListener(nullptr); }

private:
    void RowsReset() override;
    void RowsInserted(int first, int last) override;
    void RowsRemoved(int first, int last) override;
    void RowsChanged(int first, int last) override { model_.TellChanged(first, last); }
    void PicksChanged() override {}
    void CurrentChanged() override;
    void RowWantedInView() override {}

    /// Tells the field what has become of the rows. Whatever it makes of that, it shows the control's choice.
    template <class TellT>
    void Follow(TellT tell);

    ListBoxModel& model_;
    bool writing_ = false;
};

} // namespace korvane
