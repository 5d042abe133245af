#pragma once

#include "common/text/Text.h"
#include "controls/views/WebView.h"
#include "extras/web/PageText.h"
#include "platform/Network.h"

#include <chrono>
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace korvane {

class App;
class TextControl;

/// Loads pages by http, https and from the disk, and shows them as a text with links and pictures. There are
/// no scripts. A page gets pictures from its own server alone, and a page of the net none from the disk.
class PageEngine final : public WebEngine {
public:
    /// How much is loaded for one page, with its pictures, and how long that may take.
    struct Limits {
        std::int64_t bytes = 10'000'000;
        std::chrono::milliseconds time{15'000};
        std::size_t pictures = 200;
    };

    /// All outlive the engine. `text` shows the pages of `view`.
    PageEngine(App& app, WebView& view, TextControl& text);
    PageEngine(App& app, WebView& view, TextControl& text, const Limits& limits);

    void Navigate(TextView address) override;
    void GoBack() override;
    void GoForward() override;
    void Refresh() override;
    void Stop() override;

    /// Where the shown page is; empty when there is none.
    Text Address() const;

private:
    void Enter(const Text& address);
    void GoTo(std::size_t place);
    void Begin();
    void Complete();
    void LoadPage();
    void LoadFromNet(const Text& address);
    void LoadFromDisk(const Text& address);
    void FollowLink(const Text& link);

    void Take(const Fetched& fetched);
    void TakePage(TextView type, const std::string& bytes);
    void FetchPictures(std::chrono::milliseconds took);
    void TakePicture(const PictureSource& source, const Fetched& fetched);
    void ReadPicture(const PictureSource& source);
    void PicturesDone();

    void Show(std::string_view page, int format);
    void ShowHtml(std::string_view html);
    void ShowNote(TextView title, TextView text);

    App& app_;
    WebView& view_;
    TextControl& text_;
    Limits limits_;

    std::vector<Text> visited_;
    std::size_t place_ = 0;
    bool loading_ = false;
    std::vector<std::unique_ptr<Fetch>> fetches_;

    // The page that is shown, while its pictures come.
    std::string html_;
    std::vector<PictureSource> sources_;
    std::map<std::size_t, std::string> pictures_;
    std::int64_t bytesLeft_ = 0;
    std::size_t picturesOpen_ = 0;
};

} // namespace korvane
