#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace korvane {

class App;
struct FileOperation;

/// What the small windows for a new name share: a common width, which they keep for their next opening, and
/// fields in which Return accepts and Esc gives up.
class NameDialog : public Form {
public:
    /// A stored width above `leastWidth` is taken.
    NameDialog(App& app, std::string_view name, TextView caption, Twips leastWidth);

    CommandButton cmdAccept{*this, "cmdAccept", u"&Accept"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;
    void Unload() override;

protected:
    /// The widths above which a stored one is taken.
    static constexpr Twips kUsualWidth{6840};

    virtual void Accept() = 0;
    /// In which the name is to be given.
    virtual Text FolderOfName() const;
    /// A key of one of the fields that neither accepts nor gives up.
    virtual void FieldKey(TextBox& /*field*/, KeyEvent& /*key*/) {}

    void AddField(TextBox& field);
    /// Ends with the outcome 1.
    void Done();
    App& TheApp() const { return app_; }
    FileOperation& File() const;

private:
    void AcceptOnDisk();
    bool DiskAnswers();
    void Cancel();
    void Field_KeyDown(TextBox& field, KeyEvent& key);

    App& app_;
    Twips leastWidth_;
    /// While it waits for the disk.
    bool asking_ = false;
};

} // namespace korvane
