#include "foundation/desk/list_screen.h"

#include "foundation/values/text.h"

namespace winvrx {

ListRow unreadRow(std::string_view lineBytes) {
    const std::string shown = readableText(lineBytes);
    const std::string text = shown.empty() ? "Linha em branco" : "Linha não entendida: " + shown;
    return {{"⚠", text}, text, false};
}

std::string unreadCount(std::size_t lines) {
    return alongWith(lines, "linha não entendida", "linhas não entendidas");
}

std::string alongWith(std::size_t count, std::string_view one, std::string_view many) {
    return count == 0 ? std::string() : ", " + countOf(count, one, many);
}

Message recordDespiteDoubts(std::string doubts) {
    return warning("Aviso", "Há dados que parecem errados. Gravar assim mesmo?", std::move(doubts));
}

void ListScreen::load() {
    (void)run(incorrectData(), [this] {
        reread();
        return true;
    });
}

void ListScreen::reloadQuietly() {
    attemptQuietly(at_.log, "list not read again", [this] { reread(); });
}

std::optional<std::size_t> ListScreen::positionOf(const std::string& bytes) const {
    for (std::size_t position = 0; position < count(); ++position)
        if (bytesAt(position) == bytes) return position;
    return std::nullopt;
}

bool ListScreen::confirmDiscardTyped() {
    return at_.person.agrees(discardTyped());
}

bool ListScreen::refuse(const Message& message, std::string detail) const {
    Message told = message;
    if (!detail.empty()) told.detail = std::move(detail);
    return at_.person.refuse(told);
}

}  // namespace winvrx
