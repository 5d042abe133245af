#include "platform/native/user/UserCodePage.h"

#include "platform/native/SystemCalls.h"

#include <cstdlib>

namespace korvane {

std::string TextLocale(const std::function<std::string(const char* name)>& value) {
    for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        std::string locale = value(name);
        if (!locale.empty()) return locale;
    }
    return {};
}

CodePage UserCodePage() {
    if (const auto page = CodePage::ForNumber(system_calls::AnsiCodePage())) return *page;
    return CodePage::ForLanguage(TextLocale([](const char* name) -> std::string {
        const char* value = std::getenv(name);
        return value ? value : "";
    }));
}

} // namespace korvane
