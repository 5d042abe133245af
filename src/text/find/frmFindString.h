#pragma once

#include "controls/Buttons.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"
#include "controls/text/TextControl.h"
#include "text/find/FindPlace.h"
#include "text/find/FindState.h"

#include <optional>

namespace korvane {

class App;

/// Searches in a text, and stays open while the user goes from hit to hit. Modal.
class frmFindString : public Form {
public:
    /// Both outlive the window.
    frmFindString(App& app, TextControl& target);

    Menu OfficeMenu1;
    TextControl txtFindString{*this, "txtFindString"};
    ComboBox cboFindString{*this, "cboFindString"};
    OptionButton optDown{*this, "optDown", "direction", u"&Down"};
    OptionButton optUp{*this, "optUp", "direction", u"U&p"};
    CheckBox chkCase{*this, "chkCase", u"&Case sensitive search"};
    // Kept for compatibility: puncutation-caption.
    CheckBox chkWholeWord{*this, "chkWholeWord", u"&Whole words;     Puncutation:"};
    TextBox txtWordDelimiters{*this, "txtWordDelimiters"};

    void Load() override;
    void Unload() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;

    FindState& State() const;
    LetterCase Case() const;
    void RestoreFindPlace();
    void StoreFindPlace();
    void FillHistory();
    void AddToHistory(TextView wanted);
    void ShowOptions();
    void TakeOptions();
    void BuildDelimiterTable();

    std::optional<std::size_t> FindInText(TextView wanted) const;
    std::optional<std::size_t> FindWord(TextView wanted);
    void ShowFoundLine(std::size_t place, std::size_t length);
    void ReportNoFind(TextView wanted);

    void mnuFind_Click();
    void mnuTop_Click();
    void mnuOutset_Click();
    void mnuUnicode_Click();
    void mnuCharacters_Click();
    void TakeFromHistory();
    void TakeFromWordList();
    void Enlarge();

    App& app_;
    TextControl& target_;
};

} // namespace korvane
