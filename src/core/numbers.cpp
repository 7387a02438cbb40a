#include "core/numbers.h"

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

float CSng(double x, const std::string& step) {
    if (std::isinf(x) || (std::isfinite(x) && std::fabs(x) > std::numeric_limits<float>::max()))
        throw Error(err::Overflow, step, "kwota " + numText(x) + " przekracza zakres liczby pojedynczej precyzji");
    return static_cast<float>(x);
}

float Round2(double x) {
    double r = std::nearbyint(x * 100.0) / 100.0;  // the default rounding mode: ties to even
    return CSng(r, "Round2");
}

float Round2InPlace(float& x) {
    x = Round2(static_cast<double>(x));
    return x;
}

float RoundZl(double x) {
    double f = Fix(x);
    return CSng(x - f >= 0.5 ? f + 1 : f, "RoundZl");
}

float RoundZlInPlace(float& x) {
    x = RoundZl(static_cast<double>(x));
    return x;
}

double RoundSkl(double x) {
    double t = Fix(x * 1000);
    std::string tt = numText(t);
    if (!tt.empty() && tt.back() == '5')
        x = x + 0.001;
    else
        x = t / 1000;
    x = std::nearbyint(x * 100.0) / 100.0;
    return std::strtod(Format(x, "0.00").c_str(), nullptr);
}


namespace {

// %G-like text with `prec` significant digits, the exponent written as the classic run-time
// writes it (E+07, E-05), no trailing zeros.
std::string shortest(double v, int prec) {
    if (v == 0) return "0";
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*G", prec, v);
    std::string s = buf;
    auto e = s.find('E');
    if (e != std::string::npos) {
        std::string mant = s.substr(0, e);
        std::string ex = s.substr(e + 1);
        char sign = ex[0];
        std::string digits = ex.substr(1);
        while (digits.size() > 2 && digits[0] == '0') digits.erase(0, 1);
        if (digits.size() < 2) digits = "0" + digits;
        s = mant + "E" + sign + digits;
    }
    return s;
}

// Decimal digits of |v| taken to `sig` significant digits: the digits and the power of ten of
// the first one.
struct Decimal {
    std::string digits;  // no leading zeros, at least one digit
    int exp10 = 0;       // value = 0.d1d2d3... * 10^(exp10+1)... i.e. d1 stands at 10^exp10
    bool negative = false;
    bool zero = true;
};

Decimal toDecimal(double v, int sig) {
    Decimal d;
    if (v == 0 || !std::isfinite(v)) return d;
    d.negative = v < 0;
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*e", sig - 1, std::fabs(v));
    std::string s = buf;
    auto e = s.find('e');
    for (std::size_t i = 0; i < e; ++i)
        if (s[i] >= '0' && s[i] <= '9') d.digits += s[i];
    d.exp10 = std::atoi(s.c_str() + e + 1);
    d.zero = false;
    return d;
}

// The value rounded half away from zero to `places` decimals: whole part digits and decimals.
void roundDecimal(const Decimal& d, int places, std::string& whole, std::string& frac) {
    whole.clear();
    frac.clear();
    if (d.zero) {
        whole = "0";
        frac.assign(places, '0');
        return;
    }
    // Digit string covering positions from 10^max(exp10,0) down to 10^-(places+1).
    int hi = std::max(d.exp10, 0);
    int lo = -(places + 1);
    std::string all;
    for (int p = hi; p >= lo; --p) {
        int idx = d.exp10 - p;
        char c = (idx >= 0 && idx < static_cast<int>(d.digits.size())) ? d.digits[idx] : '0';
        all += c;
    }
    // Any digit beyond the first dropped one does not matter for half away from zero:
    // round on the digit at 10^-(places+1).
    bool up = all.back() >= '5';
    all.pop_back();
    if (up) {
        int i = static_cast<int>(all.size()) - 1;
        while (i >= 0) {
            if (all[i] == '9') {
                all[i] = '0';
                --i;
            } else {
                ++all[i];
                break;
            }
        }
        if (i < 0) all.insert(all.begin(), '1');
    }
    whole = all.substr(0, all.size() - places);
    frac = all.substr(all.size() - places);
    std::size_t nz = whole.find_first_not_of('0');
    whole = nz == std::string::npos ? "0" : whole.substr(nz);
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
    Decimal d = toDecimal(v, sig);
    std::string whole, frac;
    roundDecimal(d, places, whole, frac);
    while (static_cast<int>(frac.size()) > minPlaces && frac.back() == '0') frac.pop_back();
    bool isZero = whole.find_first_not_of('0') == std::string::npos && frac.find_first_not_of('0') == std::string::npos;
    if (whole == "0" && minWhole == 0) whole.clear();
    while (static_cast<int>(whole.size()) < minWhole) whole.insert(whole.begin(), '0');
    if (group && whole.size() > 3) {
        std::string g;
        int n = static_cast<int>(whole.size());
        for (int i = 0; i < n; ++i) {
            if (i > 0 && (n - i) % 3 == 0) g += ',';
            g += whole[i];
        }
        whole = g;
    }
    std::string out;
    if (d.negative && !isZero) out += '-';
    out += whole;
    if (point != std::string_view::npos && (!frac.empty() || places == 0)) {
        if (!frac.empty()) out += '.' + frac;
    }
    return out;
}

}  // namespace

std::string numText(float v) { return shortest(static_cast<double>(v), 7); }
std::string numText(double v) { return shortest(v, 15); }
std::string numText(long v) { return std::to_string(v); }

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
