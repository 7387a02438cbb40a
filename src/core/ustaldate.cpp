#include "core/ustaldate.h"

namespace core {

bool poprawnyMiesiac(const std::string& RRmm) {
    if (RRmm.size() != 4) return false;
    for (char c : RRmm)
        if (c < '0' || c > '9') return false;
    const int miesiac = (RRmm[2] - '0') * 10 + (RRmm[3] - '0');
    return miesiac >= 1 && miesiac <= 12;
}

std::optional<std::string> modUstalDate(Dialogs& ui, const std::string& RRmm) {
    for (;;) {
        auto typed = ui.inputBox("Ok = Aktualna data " + RRmm + " Podaj date w formacie RRMM ", " Wprowadź date listy  ",
                                 RRmm);
        if (!typed) return std::nullopt;
        if (poprawnyMiesiac(*typed)) return typed;
        ui.msgBox("Zle wpisana data!", Buttons::OK, Icon::Exclamation, "");
    }
}

}  // namespace core
