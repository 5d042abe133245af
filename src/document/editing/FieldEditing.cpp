#include "document/editing/TextEditing.h"

#include <algorithm>

namespace korvane::doc {

const std::vector<TextEditing::FieldPlace>& TextEditing::FieldPlaces() const {
    if (fieldPlaces_) return *fieldPlaces_;
    std::vector<FieldPlace>& places = fieldPlaces_.emplace();
    store_->Runs(0, All().size(), [&places](Pos start, std::size_t length, const Look& look) {
        if (look.field == 0) return;
        // A field goes on over the end of a paragraph.
        const bool same = !places.empty() && places.back().field == look.field &&
                          (places.back().end == start || places.back().end + kCrLf.size() == start);
        if (same)
            places.back().end = start + length;
        else
            places.push_back({look.field, start, start + length});
    });
    return places;
}

const TextEditing::FieldPlace* TextEditing::PlaceOfField(Index field) const {
    const auto& places = FieldPlaces();
    const auto found = std::ranges::find(places, field, &FieldPlace::field);
    return field == 0 || found == places.end() ? nullptr : &*found;
}

Field TextEditing::DataOf(int field) const {
    const auto found = fields_.find(static_cast<Index>(field));
    return found == fields_.end() ? Field{} : found->second;
}

Field* TextEditing::DataFor(int field) {
    const auto found = fields_.find(static_cast<Index>(field));
    return found == fields_.end() ? nullptr : &found->second;
}

/// Whether a character of a field is in the stretch or next to it, also over the end of a paragraph.
bool TextEditing::NearField(Pos from, Pos to) const {
    const Pos around = kCrLf.size() + 1;
    bool near = false;
    store_->Runs(from > around ? from - around : 0, std::min(to + around, All().size()),
                 [&near](Pos, std::size_t, const Look& look) { near = near || look.field != 0; });
    return near;
}

/// The field to which a text belongs that takes the place of the stretch: the one that has the stretch within
/// it.
Index TextEditing::FieldFor(Pos from, Pos to) const {
    // Most texts are written far from any field, and to look for all fields takes time in a long document.
    if (!NearField(from, to)) return 0;
    for (const FieldPlace& place : FieldPlaces()) {
        if (place.start > to) return 0;
        const bool within =
            from == to ? place.start < from && to < place.end : place.start <= from && to <= place.end;
        const bool all = place.start == from && place.end == to;
        if (within && !all) return place.field;
    }
    return 0;
}

int TextEditing::FieldAtInputPos() const {
    if (emptyField_) return static_cast<int>(*emptyField_);
    Index found = 0;
    for (const FieldPlace& place : FieldPlaces()) {
        if (place.start > start_) break;
        if (start_ <= place.end) found = place.field;
    }
    return static_cast<int>(found);
}

int TextEditing::FieldStart() const {
    if (emptyField_ && *emptyField_ == fieldCurrent_) return SelStart() + 1;
    const FieldPlace* const place = PlaceOfField(fieldCurrent_);
    return place == nullptr ? 0 : static_cast<int>(place->start) + 1;
}

Text TextEditing::FieldText() const {
    const FieldPlace* const place = PlaceOfField(fieldCurrent_);
    return place == nullptr ? Text() : All().substr(place->start, place->end - place->start);
}

void TextEditing::SetFieldText(TextView text) {
    if (emptyField_ && *emptyField_ == fieldCurrent_) return Insert(LineHere(text, fieldCurrent_));
    const FieldPlace* const found = PlaceOfField(fieldCurrent_);
    if (found == nullptr) return;
    const FieldPlace place = *found;
    Select(place.start, place.end);
    Insert(LineHere(text, fieldCurrent_));
}

void TextEditing::SetFieldType(int field, int type) {
    Field* const data = DataFor(field);
    if (data == nullptr || type < 0 || type > 1) return;
    data->kind = static_cast<FieldKind>(type);
    NoteChange(false);
}

void TextEditing::SetFieldTypeData(int field, TextView text) {
    if (Field* const data = DataFor(field)) {
        data->typeData = text;
        NoteChange(false);
    }
}

void TextEditing::SetFieldData(int field, TextView text) {
    if (Field* const data = DataFor(field)) {
        data->data = text;
        NoteChange(false);
    }
}

int TextEditing::FieldNext(int field) const {
    const auto& places = FieldPlaces();
    auto next = places.begin();
    if (field != 0) {
        next = std::ranges::find(places, static_cast<Index>(field), &FieldPlace::field);
        if (next != places.end()) ++next;
    }
    // A field that is in several places counts at the first of them.
    while (next != places.end() &&
           std::ranges::find(places.begin(), next, next->field, &FieldPlace::field) != next)
        ++next;
    return next == places.end() ? 0 : static_cast<int>(next->field);
}

void TextEditing::FieldInsert(TextView text) {
    const Index number = fields_.empty() ? 1 : fields_.rbegin()->first + 1;
    const CharDelta pending = pending_;
    fields_[number] = {};
    if (!text.empty()) return Insert(LineHere(text, number));
    if (end_ > start_) DeleteSelection();
    pending_ = pending;
    emptyField_ = number;
}

} // namespace korvane::doc
