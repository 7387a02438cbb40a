#include "core/numbers.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <limits>

#include "core/error.h"
#include "core/text.h"

namespace core {

double Fix(double x) { return std::trunc(x); }

namespace {

bool beyondSingle(double x) {
    return std::isinf(x) || (std::isfinite(x) && std::fabs(x) > std::numeric_limits<float>::max());
}

[[noreturn]] void singleOverflow(double x, const std::string& step) {
    throw Error(err::Overflow, step, "kwota " + numText(x) + " przekracza zakres liczby pojedynczej precyzji");
}

// CSng whose step is named only when the store fails.
float narrow(double x, const char* step) {
    if (beyondSingle(x)) singleOverflow(x, step);
    return static_cast<float>(x);
}

}  // namespace

float CSng(double x, const std::string& step) {
    if (beyondSingle(x)) singleOverflow(x, step);
    return static_cast<float>(x);
}

float Round2(double x) {
    double r = std::nearbyint(x * 100.0) / 100.0;  // the default rounding mode: ties to even
    return narrow(r, "Round2");
}

float Round2InPlace(float& x) {
    x = Round2(static_cast<double>(x));
    return x;
}

float RoundZl(double x) {
    double f = Fix(x);
    return narrow(x - f >= 0.5 ? f + 1 : f, "RoundZl");
}

float RoundZlInPlace(float& x) {
    x = RoundZl(static_cast<double>(x));
    return x;
}

double RoundSkl(double x) {
    // The third decimal is looked at in the text of the whole thousandths: below 10^15 that text
    // is the whole number itself, so its last digit is the number's last digit.
    double t = Fix(x * 1000);
    bool piec;
    if (std::fabs(t) < 1e15) {
        piec = std::fmod(std::fabs(t), 10.0) == 5.0;
    } else {
        std::string tt = numText(t);
        piec = !tt.empty() && tt.back() == '5';
    }
    if (piec)
        x = x + 0.001;
    else
        x = t / 1000;
    x = std::nearbyint(x * 100.0) / 100.0;
    // The value goes through its text "0.00" and back. Below 10^12 that text has all of the
    // whole hundredths x stands for, and reading it back gives x again (a zero without its sign).
    if (std::fabs(x) < 1e12) return x == 0 ? 0.0 : x;
    return std::strtod(Format(x, "0.00").c_str(), nullptr);
}


namespace {

// %G-like text with `prec` significant digits, the exponent written as the classic run-time
// writes it (E+07, E-05), no trailing zeros.
std::size_t shortest(char* out, double v, int prec) {
    if (v == 0) {
        out[0] = '0';
        return 1;
    }
    if (!std::isfinite(v)) {
        int n = std::snprintf(out, kNumTextMax, "%.*G", prec, v);
        return static_cast<std::size_t>(n);
    }
    // As printf's %.*G: the exponent has at least two digits, trailing zeros are dropped.
    const auto r = std::to_chars(out, out + kNumTextMax, v, std::chars_format::general, prec);
    for (char* p = out; p < r.ptr; ++p)
        if (*p == 'e') *p = 'E';
    return static_cast<std::size_t>(r.ptr - out);
}

// The same text from the shortest digits that give the value back ("d.ddde+XX"), when there are
// at most `prec` of them and the value lies closer to them than half a unit of the last of the
// `prec` places (its own unit in the last place is below a unit of that place): they are then
// the digits %.*G rounds the value to, and only the layout is left. 0 when they are not.
template <class T>
std::size_t fromShortest(char* out, T v, int prec, T ulp) {
    char sci[48];
    const auto r = std::to_chars(sci, sci + sizeof sci, v, std::chars_format::scientific);
    const char* p = sci;
    const bool negative = *p == '-';
    if (negative) ++p;
    char digits[24];
    int nd = 0;
    for (; p < r.ptr && *p != 'e'; ++p)
        if (*p != '.') digits[nd++] = *p;
    // A power of ten may stand for a value just below it, whose places are a decade finer.
    if (nd > prec || (nd == 1 && digits[0] == '1')) return 0;
    int exp10 = 0;
    std::from_chars(p + 1 + (p[1] == '+'), r.ptr, exp10);
    if (!(static_cast<double>(ulp) < std::pow(10.0, exp10 - prec + 1))) return 0;
    char* o = out;
    if (negative) *o++ = '-';
    if (exp10 < -4 || exp10 >= prec) {
        *o++ = digits[0];
        if (nd > 1) {
            *o++ = '.';
            for (int i = 1; i < nd; ++i) *o++ = digits[i];
        }
        *o++ = 'E';
        *o++ = exp10 < 0 ? '-' : '+';
        const int a = std::abs(exp10);
        if (a < 10) *o++ = '0';
        o = std::to_chars(o, o + 4, a).ptr;
    } else if (exp10 >= 0) {
        for (int i = 0; i <= exp10; ++i) *o++ = i < nd ? digits[i] : '0';
        if (nd > exp10 + 1) {
            *o++ = '.';
            for (int i = exp10 + 1; i < nd; ++i) *o++ = digits[i];
        }
    } else {
        *o++ = '0';
        *o++ = '.';
        for (int i = 0; i < -exp10 - 1; ++i) *o++ = '0';
        for (int i = 0; i < nd; ++i) *o++ = digits[i];
    }
    return static_cast<std::size_t>(o - out);
}

std::string formatNumber(double v, int sig, std::string_view fmt) {
    std::size_t point = fmt.find('.');
    std::string_view wholeFmt = fmt.substr(0, point);
    std::string_view fracFmt = point == std::string_view::npos ? std::string_view{} : fmt.substr(point + 1);
    int minWhole = 0;
    bool group = false;
    for (char c : wholeFmt) {
        if (c == '0') ++minWhole;
        if (c == ',') group = true;
    }
    int places = 0, minPlaces = 0;
    for (char c : fracFmt) {
        if (c == '0' || c == '#') ++places;
        if (c == '0') minPlaces = places;
    }
    // The decimal digits of |v| taken to `sig` significant digits; the first stands at 10^exp10.
    char digits[48];
    int nd = 0, exp10 = 0;
    bool negative = false, zero = true;
    if (v != 0 && std::isfinite(v)) {
        char buf[64];
        const auto r = std::to_chars(buf, buf + sizeof buf, std::fabs(v), std::chars_format::scientific, sig - 1);
        const char* p = buf;
        for (; p < r.ptr && *p != 'e'; ++p)
            if (*p >= '0' && *p <= '9') digits[nd++] = *p;
        std::from_chars(p + 1 + (p[1] == '+'), r.ptr, exp10);
        negative = v < 0;
        zero = false;
    }
    // The digits from 10^max(exp10,0) down to 10^-places, rounded half away from zero on the
    // digit at 10^-(places+1): any digit beyond it does not matter.
    std::string all;
    if (zero) {
        all.assign(static_cast<std::size_t>(places) + 1, '0');
    } else {
        const int hi = std::max(exp10, 0);
        const int lo = -(places + 1);
        all.resize(static_cast<std::size_t>(hi - lo + 1));
        for (int p = hi; p >= lo; --p) {
            const int idx = exp10 - p;
            all[static_cast<std::size_t>(hi - p)] = (idx >= 0 && idx < nd) ? digits[idx] : '0';
        }
        const bool up = all.back() >= '5';
        all.pop_back();
        if (up) {
            int i = static_cast<int>(all.size()) - 1;
            while (i >= 0 && all[static_cast<std::size_t>(i)] == '9') all[static_cast<std::size_t>(i--)] = '0';
            if (i < 0)
                all.insert(all.begin(), '1');
            else
                ++all[static_cast<std::size_t>(i)];
        }
    }
    const std::size_t wholeEnd = all.size() - static_cast<std::size_t>(places);
    std::size_t wholeStart = 0;
    while (wholeStart + 1 < wholeEnd && all[wholeStart] == '0') ++wholeStart;
    std::size_t fracEnd = all.size();
    while (fracEnd > wholeEnd + static_cast<std::size_t>(minPlaces) && all[fracEnd - 1] == '0') --fracEnd;
    const std::string_view whole0(all.data() + wholeStart, wholeEnd - wholeStart);
    const std::string_view frac(all.data() + wholeEnd, fracEnd - wholeEnd);
    const bool wholeZero = whole0 == "0";
    const bool isZero = wholeZero && frac.find_first_not_of('0') == std::string_view::npos;
    const std::string_view whole = wholeZero && minWhole == 0 ? std::string_view{} : whole0;
    const std::size_t minW = static_cast<std::size_t>(minWhole);
    const std::size_t pad = whole.size() < minW ? minW - whole.size() : 0;
    const std::size_t n = whole.size() + pad;

    std::string out;
    out.reserve(n + n / 3 + frac.size() + 2);
    if (negative && !isZero) out += '-';
    for (std::size_t i = 0; i < n; ++i) {
        if (group && n > 3 && i > 0 && (n - i) % 3 == 0) out += ',';
        out += i < pad ? '0' : whole[i - pad];
    }
    if (!frac.empty()) {
        out += '.';
        out.append(frac);
    }
    return out;
}

}  // namespace

std::size_t numText(char* out, float v) {
    if (v != 0 && std::isfinite(v)) {
        const float ulp = std::nextafter(std::fabs(v), std::numeric_limits<float>::infinity()) - std::fabs(v);
        if (const std::size_t n = fromShortest(out, v, 7, ulp)) return n;
    }
    return shortest(out, static_cast<double>(v), 7);
}

std::size_t numText(char* out, double v) {
    if (std::isnormal(v)) {
        const double ulp = std::nextafter(std::fabs(v), std::numeric_limits<double>::infinity()) - std::fabs(v);
        if (const std::size_t n = fromShortest(out, v, 15, ulp)) return n;
    }
    return shortest(out, v, 15);
}

std::string numText(float v) {
    char buf[kNumTextMax];
    return std::string(buf, numText(buf, v));
}
std::string numText(double v) {
    char buf[kNumTextMax];
    return std::string(buf, numText(buf, v));
}
std::string numText(long v) {
    char buf[24];
    return std::string(buf, std::to_chars(buf, buf + sizeof buf, v).ptr);
}

std::string Format(double v, std::string_view fmt) { return formatNumber(v, 15, fmt); }
std::string Format(float v, std::string_view fmt) { return formatNumber(static_cast<double>(v), 7, fmt); }

std::string Format(std::string_view s, std::string_view fmt) {
    bool leftToRight = fmt.find('!') != std::string_view::npos;
    std::size_t places = 0;
    for (char c : fmt)
        if (c == '@') ++places;
    std::size_t len = Len(s);
    if (len >= places) return std::string(s);
    return leftToRight ? std::string(s) + Space(places - len) : Space(places - len) + std::string(s);
}

std::string FixedWidth(double v, std::string_view fmt, std::size_t width) { return PadLeft(Format(v, fmt), width); }

std::string CyfryTekst(long v, std::size_t width) {
    std::string s = std::to_string(v);
    if (s.size() < width) s.insert(0, width - s.size(), '0');
    return s;
}

std::string Pad10(std::string_view s) { return Right(Space(10) + std::string(s), 10); }

std::string KwotaSlownie(std::string_view amount) {
    static const char* units[] = {"", "jeden", "dwa", "trzy", "cztery", "pięć", "sześć", "siedem", "osiem", "dziewięć"};
    static const char* teens[] = {"",           "jedynaście",   "dwanaście",   "trzynaście",
                                  "czternaście", "piętnaście",  "szesnaście",  "siedemnaście",
                                  "osiemnaście", "dziewiętnaście"};
    static const char* tens[] = {"",             "dziesięć",      "dwadzieścia",   "trzydzieści",
                                 "czterdzieści", "pięćdziesiąt",  "sześćdziesiąt", "siedemdziesiąt",
                                 "osiemdziesiąt", "dziewięćdziesiąt"};
    static const char* hundreds[] = {"",         "sto",      "dwieście", "trzysta", "czterysta",
                                     "pięćset",  "sześćset", "siedemset", "osiemset", "dziewięćset"};
    std::string nine = Right(Space(9) + std::string(amount), 9);
    auto digit = [&](int pos) {  // 1-based place in the nine
        std::string c = Mid(nine, pos, 1);
        return (c.size() == 1 && c[0] >= '1' && c[0] <= '9') ? c[0] - '0' : 0;
    };
    std::string out;
    auto add = [&](const std::string& w) {
        if (w.empty()) return;
        if (!out.empty()) out += ' ';
        out += w;
    };
    static const char* suffix[] = {" milion", " tyś.", " zł."};
    for (int g = 0; g < 3; ++g) {
        int h = digit(g * 3 + 1), t = digit(g * 3 + 2), u = digit(g * 3 + 3);
        add(hundreds[h]);
        if (t == 1 && u > 0) {
            add(teens[u]);
        } else {
            std::string tw = tens[t];
            if (g == 0 && t == 5) tw = "piędziesiąt";
            if (g == 1 && t == 1) tw = "dziesieć";
            add(tw);
            add(units[u]);
        }
        if (g == 2 || h || t || u) out += suffix[g];
    }
    return PadRight(out, 94);
}

std::string DataTekst(std::string_view d) {
    std::string s(d);
    std::string third = Mid(s, 3, 1);
    if (!third.empty() && third[0] >= '0' && third[0] <= '9') return Mid(s, 9, 2) + "-" + Mid(s, 6, 2) + "-" + Left(s, 4);
    return Left(s, 2) + "-" + Mid(s, 4, 2) + "-" + Mid(s, 7, 4);
}

static const char* kMonths[] = {"styczeń", "luty",     "marzec",   "kwiecień", "maj",      "czerwiec",
                                "lipiec",  "sierpień", "wrzesień", "październik", "listopad", "grudzień"};
static const char* kDays[] = {"niedziela", "poniedziałek", "wtorek", "środa", "czwartek", "piątek", "sobota"};

const char* monthName(int m) { return (m >= 1 && m <= 12) ? kMonths[m - 1] : ""; }
const char* dayName(int wd) { return (wd >= 0 && wd <= 6) ? kDays[wd] : ""; }

Date today() {
    std::time_t t = std::time(nullptr);
    std::tm tm{};
    localtime_r(&t, &tm);
    return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday};
}

bool validDate(const Date& d) {
    using namespace std::chrono;
    return year_month_day{year{d.y}, month{static_cast<unsigned>(d.m)}, day{static_cast<unsigned>(d.d)}}.ok();
}

int weekday(const Date& d) {
    using namespace std::chrono;
    return static_cast<int>(
        std::chrono::weekday{sys_days{year{d.y} / month{static_cast<unsigned>(d.m)} / day{static_cast<unsigned>(d.d)}}}
            .c_encoding());
}

std::string FormatDate(const Date& d, std::string_view fmt) {
    std::string out;
    std::size_t i = 0;
    auto run = [&](char c) {
        std::size_t n = 0;
        while (i + n < fmt.size() && (fmt[i + n] == c || fmt[i + n] == (c - 32))) ++n;
        return n;
    };
    char buf[16];
    while (i < fmt.size()) {
        char c = fmt[i];
        char lc = (c >= 'A' && c <= 'Z') ? c + 32 : c;
        if (lc == 'd' || lc == 'm' || lc == 'y') {
            std::size_t n = run(lc);
            if (lc == 'd') {
                if (n >= 4) out += dayName(weekday(d));
                else if (n == 3) out += Left(dayName(weekday(d)), 3);
                else if (n == 2) std::snprintf(buf, sizeof buf, "%02d", d.d), out += buf;
                else out += std::to_string(d.d);
            } else if (lc == 'm') {
                if (n >= 4) out += monthName(d.m);
                else if (n == 3) out += Left(monthName(d.m), 3);
                else if (n == 2) std::snprintf(buf, sizeof buf, "%02d", d.m), out += buf;
                else out += std::to_string(d.m);
            } else {
                if (n >= 3) std::snprintf(buf, sizeof buf, "%04d", d.y), out += buf;
                else std::snprintf(buf, sizeof buf, "%02d", d.y % 100), out += buf;
            }
            i += n;
        } else {
            out += c;
            ++i;
        }
    }
    return out;
}

bool parseDate(std::string_view s, Date& out) {
    std::string t = Trim(s);
    if (Len(t) != 10) return false;
    auto num = [&](std::size_t start, std::size_t n, int& v) {
        std::string p = Mid(t, start, n);
        if (p.size() != n) return false;
        for (char c : p)
            if (c < '0' || c > '9') return false;
        v = std::atoi(p.c_str());
        return true;
    };
    Date d;
    if (!num(1, 2, d.d) || !num(4, 2, d.m) || !num(7, 4, d.y)) return false;
    if (!validDate(d)) return false;
    out = d;
    return true;
}

}  // namespace core
