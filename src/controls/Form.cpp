#include "controls/Form.h"

#include "controls/Control.h"

#include <algorithm>

namespace korvane {

Form::Form(FormHost& host, std::string_view name, TextView caption) : host_(host), name_(name) {
    Caption = Text(caption);
}

Form::~Form() {
    if (shown_) host_.Hide(*this);
}

Control* Form::Find(std::string_view name) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [name](const Control* c) { return c->Name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

void Form::ShowModal() {
    LoadOnce();
    shown_ = true;
    host_.RunModal(*this);
}

void Form::Show() {
    LoadOnce();
    shown_ = true;
    host_.Show(*this);
}

bool Form::Close() {
    if (!QueryUnload()) return false;
    Unload();
    if (shown_) {
        shown_ = false;
        host_.Hide(*this);
    }
    return true;
}

void Form::LoadOnce() {
    if (loaded_) return;
    loaded_ = true;
    Load();
}

} // namespace korvane
