#include "text/words/WordListWindow.h"

#include "context/App.h"
#include "dialogs/Questions.h"
#include "text/words/WordBuffer.h"
#include "text/words/WordListState.h"
#include "text/words/frmHoldWordList.h"

namespace korvane {

WordListWindow::WordListWindow(App& app) : app_(app) {
    app_.SetPort<WordList>(this);
}

WordListWindow::~WordListWindow() {
    if (app_.Port<WordList>() == this) app_.SetPort<WordList>(nullptr);
}

std::optional<Text> WordListWindow::Choose() {
    frmHoldWordList list(app_);
    const Text& words = app_.Exchange<WordListState>().WordListResult;
    if (ShowForResult(app_, list) != 1 || words.empty()) return std::nullopt;
    return words;
}

void WordListWindow::Collect(TextView selection) {
    AddSelection(app_.Exchange<WordListState>().WordListBuffer, selection);
    frmHoldWordList(app_).ShowModal();
}

} // namespace korvane
