// Numbers: the roundings, the number texts of the files and of the printouts, the amount in
// words and the date texts. Nothing here keeps state.
#pragma once
#include <string>
#include <string_view>

namespace core {

// x truncated towards zero.
double Fix(double x);

// A value stored into a 32-bit float: Error 6 (overflow) when it lies beyond the float's range,
// as the classic run-time raises it; `step` names the store in the error.
float CSng(double x, const std::string& step = "CSng");

// Two decimals, ties to even, narrowed to a 32-bit float (Error 6 beyond its range).
float Round2(double x);
// Whole złoty: a fraction of 0.5 or more goes up, below stays; a negative amount is truncated
// towards zero.
float RoundZl(double x);
// The same roundings of a float variable where it stands: the variable takes the result, which
// is also returned. A float variable handed to Round2 or RoundZl does not compile, so that a
// rounding in place is always written as one.
float Round2InPlace(float& x);
float RoundZlInPlace(float& x);
float Round2(float& x) = delete;
float RoundZl(float& x) = delete;
// Contributions: a third decimal that is exactly 5 goes up, the digits past it are dropped
// first; then two decimals.
double RoundSkl(double x);

// The shortest text of a number as the files hold it: no leading blank, no trailing zeros,
// a decimal point, the exponent form ("1.234568E+07") only where the precision demands it.
// A 32-bit float keeps at most 7 significant digits, a double 15.
std::string numText(float v);
std::string numText(double v);
std::string numText(long v);
inline std::string numText(int v) { return numText(static_cast<long>(v)); }
// The same texts written into `out`, which has room for kNumTextMax characters: their length.
inline constexpr std::size_t kNumTextMax = 32;
std::size_t numText(char* out, float v);
std::size_t numText(char* out, double v);

// The format strings the system prints with: "#" and "0" digit places, "," anywhere in the
// whole part for groups of three (written ","), "." for the decimal point; "@" and "!" for
// texts. A value is first taken to 7 (float) or 15 (double) significant digits and then
// rounded half away from zero to the places of the format.
std::string Format(double v, std::string_view fmt);
std::string Format(float v, std::string_view fmt);
std::string Format(std::string_view s, std::string_view fmt);

// Fixed-width number texts: formatted, blanks in front, the last `width` characters kept.
std::string FixedWidth(double v, std::string_view fmt, std::size_t width);
inline std::string Kw8(double v) { return FixedWidth(v, "####0.00", 8); }
inline std::string Kw10(double v) { return FixedWidth(v, "######0.00", 10); }
inline std::string Kw11(double v) { return FixedWidth(v, "#######0.00", 11); }
inline std::string Lp4(double v) { return FixedWidth(v, "####", 4); }

// A whole value padded with "0" to `width` digits.
std::string CyfryTekst(long v, std::size_t width = 2);
// The last 10 characters of 10 blanks followed by s.
std::string Pad10(std::string_view s);

// The amount in Polish words, 94 characters. The text holds whole złoty.
std::string KwotaSlownie(std::string_view amount);

// A date text turned into dd-mm-rrrr: "2009-03-05" becomes "05-03-2009"; "05.03.2009" becomes
// "05-03-2009".
std::string DataTekst(std::string_view d);

// Dates. `FormatDate` knows "dddd" (day name), "dd", "d", "mmmm" (month name), "mm", "m",
// "yyyy", "yy"; any other character stands as it is. Names are Polish, in lower case.
struct Date {
    int y = 0, m = 0, d = 0;
    bool operator==(const Date&) const = default;
};
Date today();
bool validDate(const Date& d);
int weekday(const Date& d);  // 0 = Sunday
std::string FormatDate(const Date& d, std::string_view fmt);
// dd-mm-rrrr (any separators) into a date; false when it is not a real date.
bool parseDate(std::string_view s, Date& out);
const char* monthName(int m);  // "styczeń" .. "grudzień"
const char* dayName(int wd);   // "niedziela" .. "sobota"

}  // namespace core
