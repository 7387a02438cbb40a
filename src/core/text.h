// Text helpers. Inside the program all text is UTF-8; these routines count characters, not bytes,
// as the system's string operations do. Positions are 1-based where the system's are.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace core {

// Code page 1250 <-> UTF-8. Encoding a character CP1250 cannot hold throws Error 5 naming it.
std::string toCp1250(std::string_view utf8, const std::string& step = "zapis pliku");
std::string fromCp1250(std::string_view bytes);
// fromCp1250 appended to `out`.
void appendFromCp1250(std::string& out, std::string_view bytes);

// Character counts and slices (1-based start, as Mid$).
std::size_t Len(std::string_view s);
std::string Left(std::string_view s, std::size_t n);
std::string Right(std::string_view s, std::size_t n);
std::string Mid(std::string_view s, std::size_t start, std::size_t n = std::string::npos);
std::string Trim(std::string_view s);
std::string LTrim(std::string_view s);
std::string RTrim(std::string_view s);
std::string UCase(std::string_view s);  // knows the Polish letters
std::string LCase(std::string_view s);
std::string Space(std::size_t n);
std::string String(std::size_t n, char c);
// 1-based position of `what` in `s` from character `start`, 0 when absent.
std::size_t InStr(std::string_view s, std::string_view what, std::size_t start = 1);
std::string Replace(std::string_view s, std::string_view what, std::string_view with);

// Pad with blanks on the right and cut to n characters (a text field of a fixed width).
std::string PadRight(std::string_view s, std::size_t n);
// Blanks in front, keep the last n characters (a right-aligned fixed-width cell).
std::string PadLeft(std::string_view s, std::size_t n);

std::vector<std::string> Split(std::string_view s, char sep);

// Every "," becomes "." (numbers typed on a screen, before they are parsed).
std::string KropkaZamiastPrzecinka(std::string& s);
std::string KropkaZamiastPrzecinka(std::string&& s);

// Numbers from text.
// Val: reads the leading number of a text, blanks ignored, stops at the first other character;
// 0 when there is none. A number too large for a double ("1e999") is Error 6 (overflow).
double Val(std::string_view s);
// A whole number from a number read from text: truncated towards zero as the classic integer
// conversions of a date part; out of the range of `int` ("1e99" as a year) is Error 6 at `step`.
// Never cast a Val to an integer type directly.
int toInt(double v, const std::string& step);
// Val then toInt: a day, a month or a year taken out of a date text.
int ValInt(std::string_view s, const std::string& step);
// A strict conversion: the whole text (blanks around it allowed) must be a number with a
// decimal point, else Error 13 at `step`. Empty text is an error too.
double toDouble(std::string_view s, const std::string& step);
// The same, but empty text gives 0 (an empty item read into a number).
double toDoubleOrZero(std::string_view s, const std::string& step);
bool isNumeric(std::string_view s);
// The strict conversion without its step, for the readers that name the failing place only when
// there is one: the number in `v`, or why the text is none (Empty: nothing but blanks).
enum class NumberText : unsigned char { Ok, Empty, NotNumber, TooLarge };
NumberText parseNumber(std::string_view s, double& v);
// The error toDouble raises at `step` for a text that parseNumber refused.
[[noreturn]] void throwNumber(NumberText why, std::string_view s, const std::string& step);

}  // namespace core
