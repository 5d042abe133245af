#pragma once

#include "QtSupport.h"
#include "Windows.h"
#include "platform/qt/binder/FormBinder.h"
#include "platform/qt/binder/FormEntry.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace korvane::test {

/// A window of the program, bound to its widgets.
class BoundWindow {
public:
    explicit BoundWindow(const Window& window)
        : form_(window.make(all_)), look_(LookOf(window.name)), binder_(*form_, *look_, pages_) {}

    Form& Shown() { return *form_; }
    QWidget& Look() { return *look_; }
    void Show() {
        look_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(look_.get()));
        Settle();
    }

private:
    class NoPages : public PageSource {
        QWidget* PageOf(Form&) override { return nullptr; }
        void Release(Form&) override {}
    };

    static std::unique_ptr<QWidget> LookOf(std::string_view name) {
        const auto looks = KorvaneForms();
        return std::ranges::find(looks, name, &FormEntry::name)->make();
    }

    TestApp program_;
    Surroundings all_{program_.app};
    NoPages pages_;
    std::unique_ptr<Form> form_;
    std::unique_ptr<QWidget> look_;
    FormBinder binder_;
};

} // namespace korvane::test
