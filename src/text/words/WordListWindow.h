#pragma once

#include "context/ports/WordList.h"

namespace korvane {

class App;

/// Shows the word list in its window.
class WordListWindow final : public WordList {
public:
    /// The App outlives the object, and from now on has its word list.
    explicit WordListWindow(App& app);
    WordListWindow(const WordListWindow&) = delete;
    WordListWindow& operator=(const WordListWindow&) = delete;
    ~WordListWindow() override;

    std::optional<Text> Choose() override;
    void Collect(TextView selection) override;

private:
    App& app_;
};

} // namespace korvane
