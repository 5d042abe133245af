#include "platform/qt/dialogs/QtMessageBoxes.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/base/DialogParent.h"

#include <QMessageBox>
#include <array>
#include <span>

namespace korvane {

namespace {

struct Button {
    QMessageBox::StandardButton button;
    Answer answer;
};

constexpr Button kOk[] = {{QMessageBox::Ok, Answer::Ok}};
constexpr Button kYesNo[] = {{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}};
constexpr Button kYesNoCancel[] = {
    {QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}, {QMessageBox::Cancel, Answer::Cancel}};
constexpr Button kOkCancel[] = {{QMessageBox::Ok, Answer::Ok}, {QMessageBox::Cancel, Answer::Cancel}};

std::span<const Button> ButtonsOf(MessageButtons buttons) {
    constexpr std::array<std::span<const Button>, 4> all{kOk, kYesNo, kYesNoCancel, kOkCancel};
    return all[static_cast<std::size_t>(buttons)];
}

QMessageBox::Icon IconOf(MessageIcon icon) {
    constexpr QMessageBox::Icon all[] = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Question,
                                         QMessageBox::Warning, QMessageBox::Critical};
    return all[static_cast<std::size_t>(icon)];
}

} // namespace

Answer QtMessageBoxes::Show(const Message& message) {
    QMessageBox box(DialogParent());
    box.setWindowTitle(QStringLiteral("Korvane"));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToLines(message.text));
    box.setIcon(IconOf(message.icon));
    const auto buttons = ButtonsOf(message.buttons);
    for (const Button& button : buttons)
        box.addButton(button.button);
    const auto preset = static_cast<std::size_t>(message.defaultButton - 1);
    if (preset < buttons.size()) box.setDefaultButton(buttons[preset].button);
    // Esc and the close box mean the last button, which does the least harm.
    box.setEscapeButton(buttons.back().button);

    const int pressed = box.exec();
    for (const Button& button : buttons) {
        if (button.button == pressed) return button.answer;
    }
    return buttons.back().answer;
}

} // namespace korvane
