// Errors of the engine: the error numbers of the classic run-time and the step that failed.
#pragma once
#include <stdexcept>
#include <string>

namespace core {

namespace err {
constexpr int InvalidCall = 5;          // a value the routine cannot take (a character CP1250 lacks)
constexpr int Overflow = 6;
constexpr int SubscriptOutOfRange = 9;
constexpr int TypeMismatch = 13;
constexpr int DeviceTimeout = 25;
constexpr int OutOfPaper = 27;
constexpr int BadFileName = 52;
constexpr int FileNotFound = 53;
constexpr int InputPastEnd = 62;
constexpr int PathFileAccess = 75;
constexpr int PathNotFound = 76;
}  // namespace err

// A failed operation: `Number` is the classic error number, `Step` names where it happened
// (the file and the record/item, or the routine), `Detail` says what was wrong in plain words.
class Error : public std::runtime_error {
public:
    Error(int number, std::string step, std::string detail = {});
    int Number;
    std::string Step;
    std::string Detail;
};

// A text that a file cannot hold: a double quote inside an item written in quotes. Thrown by
// the codec before anything is written; `Field` is the field's name in its format (empty when
// the writer gave none) and `FieldNumber` its number.
class TextRefused : public Error {
public:
    TextRefused(std::string step, std::string field, int fieldNumber);
    std::string Field;
    int FieldNumber;
};
// The text of the box refusing a double quote in the field labelled `label`.
std::string refusalText(const std::string& label);

// The words of the error report. Most screens say " Błąd nr N w linii S"; some screens use
// their own spelling, which is part of their text (BezNr: " Błąd N  w linii S"; NrKropka:
// "Błąd nr.N w linii S").
enum class ReportWords { Linii, NrLini, Linni, BezNr, NrKropka };
std::string errorReport(const Error& e, ReportWords words = ReportWords::Linii);
std::string errorReport(int number, const std::string& step, ReportWords words = ReportWords::Linii);

}  // namespace core
