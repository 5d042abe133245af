#include "controls/Form.h"

#include "controls/Control.h"

#include <algorithm>

namespace korvane {

Form::Form(FormHost& host, std::string_view name, TextView caption) : host_(host), name_(name) {
    Caption = Text(caption);
}

Form::~Form() {
    LeaveLoaded();
    // A window inside another one was never shown by itself, but it has widgets too.
    host_.Hide(*this);
}

Control* Form::Find(std::string_view name) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [name](const Control* c) { return c->Name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

void Form::ShowModal() {
    EnsureLoaded();
    shown_ = true;
    host_.RunModal(*this);
}

void Form::Show() {
    EnsureLoaded();
    shown_ = true;
    host_.Show(*this);
}

bool Form::Close() {
    if (!QueryUnload()) return false;
    Unload();
    LeaveLoaded();
    if (shown_) {
        shown_ = false;
        host_.Hide(*this);
    }
    return true;
}

void Form::EnsureLoaded() {
    if (loaded_) return;
    loaded_ = true;
    host_.loaded_.push_back(this);
    Load();
}

void Form::LeaveLoaded() {
    loaded_ = false;
    std::erase(host_.loaded_, this);
}

} // namespace korvane
