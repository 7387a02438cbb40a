// The number texts and roundings are made without the C library's printf and strtod and without
// any text in between; these rows hold them to what printf, strtod and the text round trips of
// the classic run-time gave, on values of every magnitude the files and the calculation meet.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "core/error.h"
#include "core/numbers.h"
#include "core/text.h"

using namespace core;

namespace {


// The number texts as they were made with printf and strtod, kept here to hold the present ones
// to them.
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


double roundSklByText(double x) {
    double t = std::trunc(x * 1000);
    std::string tt = shortest(t, 15);
    x = !tt.empty() && tt.back() == '5' ? x + 0.001 : t / 1000;
    x = std::nearbyint(x * 100.0) / 100.0;
    return std::strtod(formatNumber(x, 15, "0.00").c_str(), nullptr);
}

// Values of the kinds the files hold: amounts in grosze, rates, hours, whole numbers, halves and
// thousandths on their ties, and random doubles of every magnitude.
std::vector<double> wartosci() {
    std::vector<double> v = {0.0, -0.0, 0.5, -0.5, 0.125, 0.375, -0.125, 1.005, 2.675, 12.345, 2999.995, 1e15, 1e16,
                             -1e15, 123456789012.345, 999999999999.995, 1e12, 1e12 - 0.005, 4242.3798828125,
                             1.0 / 3, 1e-5, 1e-300, 5e-324, 1.7976931348623157e308, -2.5e-7, 1e-40, 3.4028234e38, 9999999.0,
                             8388607.5, 16777216.0, 0.1, 123456.7};
    std::mt19937_64 g(20210131);
    std::uniform_int_distribution<long> grosze(-100000000, 100000000);
    std::uniform_real_distribution<double> wykladnik(-12, 16);
    std::uniform_int_distribution<long> tysieczne(-10000000, 10000000);
    for (int i = 0; i < 12000; ++i) {
        v.push_back(static_cast<double>(grosze(g)) / 100);
        v.push_back(static_cast<double>(tysieczne(g)) / 1000);
        v.push_back(static_cast<double>(tysieczne(g)) * 10 + 5);
        const double m = std::pow(10.0, wykladnik(g)) * (i % 2 ? 1 : -1);
        v.push_back(m);
        v.push_back(static_cast<float>(m));
        v.push_back(static_cast<float>(static_cast<double>(grosze(g)) / 100));
        v.push_back(std::ldexp(static_cast<double>(grosze(g)), static_cast<int>(grosze(g) % 140)));  // every binade
    }
    return v;
}

}  // namespace

TEST(NumbersAsTheRunTime, TextsAndRoundings) {
    const char* const formaty[] = {"0.00", "#####0.00", "##,##0.00", "####", "#,####0.0000", "##00.00", "0.#"};
    int rozne = 0;
    for (double x : wartosci()) {
        const float f = static_cast<float>(x);
        if (numText(x) != shortest(x, 15)) ++rozne, ADD_FAILURE() << "numText(double) " << shortest(x, 17);
        if (std::isfinite(f) && numText(f) != shortest(f, 7)) ++rozne, ADD_FAILURE() << "numText(float) " << shortest(f, 9);
        for (const char* fmt : formaty) {
            if (Format(x, fmt) != formatNumber(x, 15, fmt)) ++rozne, ADD_FAILURE() << fmt << " " << shortest(x, 17);
            if (Format(f, fmt) != formatNumber(f, 7, fmt)) ++rozne, ADD_FAILURE() << fmt << " " << shortest(f, 9);
        }
        const double a = RoundSkl(x), b = roundSklByText(x);
        if (!(a == b && std::signbit(a) == std::signbit(b))) ++rozne, ADD_FAILURE() << "RoundSkl " << shortest(x, 17);
        const std::string t = numText(x);
        const double wstecz = std::strtod(t.c_str(), nullptr);  // beyond a double for the largest one
        double v = 0;
        if (parseNumber(t, v) != (std::isfinite(wstecz) ? NumberText::Ok : NumberText::TooLarge) ||
            (std::isfinite(wstecz) && (v != wstecz || Val(" " + t + "x") != wstecz)))
            ++rozne, ADD_FAILURE() << "toDouble " << t;
        if (rozne > 20) break;
    }
}

TEST(NumbersAsTheRunTime, TextsThatAreNoNumbers) {
    struct Wiersz {
        const char* tekst;
        NumberText wynik;
        double liczba;
    } wiersze[] = {
        {"  12.5 ", NumberText::Ok, 12.5},  {"+7", NumberText::Ok, 7},          {"-.5", NumberText::Ok, -0.5},
        {"5.", NumberText::Ok, 5},          {"1E+3", NumberText::Ok, 1000},     {"1e-400", NumberText::Ok, 0},
        {"   ", NumberText::Empty, 0},      {"", NumberText::Empty, 0},         {"1e", NumberText::NotNumber, 0},
        {"12,5", NumberText::NotNumber, 0}, {"\t1", NumberText::NotNumber, 0}, {".", NumberText::NotNumber, 0},
        {"1e999", NumberText::TooLarge, 0}, {"inf", NumberText::NotNumber, 0},  {"0x10", NumberText::NotNumber, 0},
    };
    for (const Wiersz& w : wiersze) {
        double v = 0;
        EXPECT_EQ(parseNumber(w.tekst, v), w.wynik) << w.tekst;
        if (w.wynik == NumberText::Ok) {
            EXPECT_EQ(v, w.liczba) << w.tekst;
        }
    }
    EXPECT_EQ(Val(" 1 2.5D2x"), 1250);  // blanks inside and the D exponent, as before
    EXPECT_THROW(Val("1e999"), Error);
}
