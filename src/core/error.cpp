#include "core/error.h"

namespace core {

static std::string describe(int number, const std::string& step, const std::string& detail) {
    std::string s = "error " + std::to_string(number) + " at " + step;
    if (!detail.empty()) s += ": " + detail;
    return s;
}

Error::Error(int number, std::string step, std::string detail)
    : std::runtime_error(describe(number, step, detail)), Number(number), Step(std::move(step)),
      Detail(std::move(detail)) {}

std::string errorReport(int number, const std::string& step, ReportWords words) {
    switch (words) {
    case ReportWords::NrLini: return "Błąd Nr " + std::to_string(number) + " w lini " + step;
    case ReportWords::Linni: return " Błąd nr " + std::to_string(number) + " w linni " + step;
    case ReportWords::BezNr: return " Błąd " + std::to_string(number) + "  w linii " + step;
    case ReportWords::NrKropka: return "Błąd nr." + std::to_string(number) + " w linii " + step;
    case ReportWords::Linii: break;
    }
    return " Błąd nr " + std::to_string(number) + " w linii " + step;
}

TextRefused::TextRefused(std::string step, std::string field, int fieldNumber)
    : Error(err::InvalidCall, std::move(step), refusalText(field)), Field(std::move(field)), FieldNumber(fieldNumber) {}

std::string refusalText(const std::string& label) {
    return "Pole \"" + label + "\" nie może zawierać cudzysłowu (\"). Zmian nie zapisano.";
}

std::string errorReport(const Error& e, ReportWords words) {
    if (dynamic_cast<const TextRefused*>(&e)) return e.Detail;
    std::string s = errorReport(e.Number, e.Step, words);
    if (!e.Detail.empty()) s += "\n" + e.Detail;
    return s;
}

}  // namespace core
