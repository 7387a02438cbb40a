#include "reference/names.h"

#include "core/error.h"
#include "core/text.h"

namespace reference {

std::string badName(const std::string& name, const std::string& subject) {
    if (name.empty()) return subject + " nie może być pusty.";
    if (name == "." || name == "..") return subject + " nie może być kropką ani dwiema kropkami (\"" + name + "\").";
    for (unsigned char c : name) {
        if (c == '/' || c == '\\') return subject + " nie może zawierać ukośnika (\"/\" ani \"\\\").";
        if (c == ' ' || c == '\t') return subject + " nie może zawierać spacji.";
        if (c == '"') return subject + " nie może zawierać cudzysłowu.";
        if (c < 0x20 || c == 0x7f) return subject + " nie może zawierać znaków sterujących.";
    }
    try {
        core::toCp1250(name);
    } catch (const core::Error&) {
        return subject + " zawiera znak, którego nie można zapisać w plikach programu (strona kodowa 1250).";
    }
    return {};
}

}  // namespace reference
