// Pages are locked in by a sandbox that doesn't work for the administrator, so this program gives the
// administrator's rights away before it does anything else.

#include "support/TempDir.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <QApplication>
#include <cstdio>

/// The libraries of Qt WebEngine weren't built for the address sanitizer, which finds fault with what they
/// free and what they keep to the end.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() { // NOLINT: the sanitizer knows it by this name
    return "new_delete_type_mismatch=0:detect_leaks=0";
}

namespace {

/// Goes on as the user that owns nothing, in a home that is gone afterwards.
bool BecomeNobody(const std::string& home) {
    const passwd* nobody = getpwnam("nobody");
    return nobody != nullptr && chown(home.c_str(), nobody->pw_uid, nobody->pw_gid) == 0 &&
           setgroups(0, nullptr) == 0 && setgid(nobody->pw_gid) == 0 && setuid(nobody->pw_uid) == 0;
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const korvane::TempDir home;
    if (geteuid() == 0 && !BecomeNobody(home.Path().string())) {
        std::puts("There is no user without rights, as whom pages could be shown.");
        return 1;
    }
    qputenv("HOME", home.Path().c_str());
    qputenv("XDG_RUNTIME_DIR", home.Path().c_str());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
