#include "document/model/Import.h"

namespace korvane::doc {

namespace {

/// The known number of an entry, or a new one that `make` gives.
template <class Number, class Make>
Number Remembered(std::optional<Number>& number, const Make& make) {
    if (!number) number = make();
    return *number;
}

} // namespace

std::uint16_t Import::TakeFont(std::uint16_t font) {
    return Remembered(fonts_[font], [&] { return to_.FontNumber(from_.fonts[font]); });
}

Index Import::TakeChars(Index format) {
    return Remembered(chars_[format], [&] {
        CharFormat taken = from_.chars[format];
        taken.font = TakeFont(taken.font);
        return to_.chars.Add(taken);
    });
}

Index Import::TakeParas(Index format) {
    return Remembered(paras_[format], [&] { return to_.paras.Add(from_.paras[format]); });
}

Index Import::TakeImage(Index image) {
    if (image == 0) return 0;
    return Remembered(images_[image - 1], [&] {
        to_.images.push_back(from_.images[image - 1]);
        return static_cast<Index>(to_.images.size());
    });
}

Run Import::Take(Run run) {
    run.format = TakeChars(run.format);
    run.image = TakeImage(run.image);
    return run;
}

Paragraph Import::Take(const Paragraph& paragraph) {
    Paragraph taken = paragraph;
    for (Run& run : taken.runs)
        run = Take(run);
    taken.format = TakeParas(paragraph.format);
    if (taken.text.empty()) taken.emptyFormat = TakeChars(paragraph.emptyFormat);
    return taken;
}

} // namespace korvane::doc
