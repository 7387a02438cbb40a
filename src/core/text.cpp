#include "core/text.h"

#include <iconv.h>

#include <array>
#include <charconv>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <mutex>
#include <unordered_map>

#include "core/error.h"

namespace core {

namespace {

// The upper half of CP1250 as code points, worked out once through iconv. Bytes without a
// character in the code page map to 0.
struct Cp1250Table {
    std::array<char32_t, 128> upper{};
    std::unordered_map<char32_t, unsigned char> back;
    Cp1250Table() {
        iconv_t cd = iconv_open("UTF-32LE", "CP1250");
        for (int b = 0x80; b <= 0xFF; ++b) {
            char32_t cp = 0;
            if (cd != (iconv_t)-1) {
                char in = static_cast<char>(b);
                char* pin = &in;
                size_t inLeft = 1;
                char out[4];
                char* pout = out;
                size_t outLeft = 4;
                if (iconv(cd, &pin, &inLeft, &pout, &outLeft) != (size_t)-1 && outLeft == 0) {
                    cp = static_cast<unsigned char>(out[0]) | (static_cast<unsigned char>(out[1]) << 8) |
                         (static_cast<unsigned char>(out[2]) << 16);
                }
                iconv(cd, nullptr, nullptr, nullptr, nullptr);
            }
            upper[b - 0x80] = cp;
            if (cp) back[cp] = static_cast<unsigned char>(b);
        }
        if (cd != (iconv_t)-1) iconv_close(cd);
    }
};

const Cp1250Table& table() {
    static const Cp1250Table t;
    return t;
}

void appendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

// Decodes one UTF-8 character at i, advancing i. Malformed bytes come out as themselves.
char32_t nextCp(std::string_view s, std::size_t& i) {
    unsigned char c = static_cast<unsigned char>(s[i]);
    int extra = c < 0x80 ? 0 : (c >> 5) == 6 ? 1 : (c >> 4) == 14 ? 2 : (c >> 3) == 30 ? 3 : -1;
    if (extra <= 0 || i + extra >= s.size()) {
        ++i;
        return extra == 0 ? c : 0xFFFD;
    }
    char32_t cp = c & (0x3F >> extra);
    for (int k = 1; k <= extra; ++k) cp = (cp << 6) | (static_cast<unsigned char>(s[i + k]) & 0x3F);
    i += extra + 1;
    return cp;
}

// Byte offset of the n-th character (0-based); s.size() when past the end.
std::size_t byteOffset(std::string_view s, std::size_t n) {
    std::size_t i = 0;
    while (n > 0 && i < s.size()) {
        unsigned char c = static_cast<unsigned char>(s[i]);
        ++i;
        if (c >= 0x80)
            while (i < s.size() && (static_cast<unsigned char>(s[i]) & 0xC0) == 0x80) ++i;
        --n;
    }
    return i;
}

char32_t upperCp(char32_t cp) {
    if (cp >= 'a' && cp <= 'z') return cp - 32;
    switch (cp) {
    case U'ą': return U'Ą';
    case U'ć': return U'Ć';
    case U'ę': return U'Ę';
    case U'ł': return U'Ł';
    case U'ń': return U'Ń';
    case U'ó': return U'Ó';
    case U'ś': return U'Ś';
    case U'ź': return U'Ź';
    case U'ż': return U'Ż';
    case U'ä': return U'Ä';
    case U'ö': return U'Ö';
    case U'ü': return U'Ü';
    case U'é': return U'É';
    case U'á': return U'Á';
    case U'č': return U'Č';
    case U'ř': return U'Ř';
    case U'š': return U'Š';
    case U'ž': return U'Ž';
    default: return cp;
    }
}

char32_t lowerCp(char32_t cp) {
    if (cp >= 'A' && cp <= 'Z') return cp + 32;
    switch (cp) {
    case U'Ą': return U'ą';
    case U'Ć': return U'ć';
    case U'Ę': return U'ę';
    case U'Ł': return U'ł';
    case U'Ń': return U'ń';
    case U'Ó': return U'ó';
    case U'Ś': return U'ś';
    case U'Ź': return U'ź';
    case U'Ż': return U'ż';
    case U'Ä': return U'ä';
    case U'Ö': return U'ö';
    case U'Ü': return U'ü';
    case U'É': return U'é';
    case U'Á': return U'á';
    case U'Č': return U'č';
    case U'Ř': return U'ř';
    case U'Š': return U'š';
    case U'Ž': return U'ž';
    default: return cp;
    }
}

template <class F>
std::string mapCps(std::string_view s, F f) {
    std::string out;
    out.reserve(s.size());
    for (std::size_t i = 0; i < s.size();) appendUtf8(out, f(nextCp(s, i)));
    return out;
}

bool isBlank(char c) { return c == ' '; }

}  // namespace

std::string toCp1250(std::string_view utf8, const std::string& step) {
    const auto& t = table();
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        // A run of ASCII goes as it is.
        std::size_t run = i;
        while (run < utf8.size() && static_cast<unsigned char>(utf8[run]) < 0x80) ++run;
        out.append(utf8.data() + i, run - i);
        i = run;
        if (i == utf8.size()) break;
        char32_t cp = nextCp(utf8, i);
        if (cp < 0x80) {
            out += static_cast<char>(cp);
            continue;
        }
        auto it = t.back.find(cp);
        if (it == t.back.end()) {
            std::string ch;
            appendUtf8(ch, cp);
            throw Error(err::InvalidCall, step,
                        "znak \"" + ch + "\" nie istnieje w stronie kodowej Windows-1250 i nie może być zapisany");
        }
        out += static_cast<char>(it->second);
    }
    return out;
}

void appendFromCp1250(std::string& out, std::string_view bytes) {
    const char* p = bytes.data();
    const char* const end = p + bytes.size();
    while (p < end) {
        // A run of ASCII goes as it is.
        const char* run = p;
        while (run < end && static_cast<unsigned char>(*run) < 0x80) ++run;
        out.append(p, static_cast<std::size_t>(run - p));
        if (run == end) break;
        const char32_t cp = table().upper[static_cast<unsigned char>(*run) - 0x80];
        appendUtf8(out, cp ? cp : 0xFFFD);
        p = run + 1;
    }
}

std::string fromCp1250(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    appendFromCp1250(out, bytes);
    return out;
}

std::size_t Len(std::string_view s) {
    std::size_t n = 0;
    for (char c : s)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++n;
    return n;
}

std::string Left(std::string_view s, std::size_t n) { return std::string(s.substr(0, byteOffset(s, n))); }

std::string Right(std::string_view s, std::size_t n) {
    std::size_t len = Len(s);
    if (n >= len) return std::string(s);
    return std::string(s.substr(byteOffset(s, len - n)));
}

std::string Mid(std::string_view s, std::size_t start, std::size_t n) {
    if (start < 1) start = 1;
    std::size_t b = byteOffset(s, start - 1);
    if (b >= s.size()) return {};
    std::string_view rest = s.substr(b);
    if (n == std::string::npos) return std::string(rest);
    return std::string(rest.substr(0, byteOffset(rest, n)));
}

std::string LTrim(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size() && isBlank(s[i])) ++i;
    return std::string(s.substr(i));
}

std::string RTrim(std::string_view s) {
    std::size_t n = s.size();
    while (n > 0 && isBlank(s[n - 1])) --n;
    return std::string(s.substr(0, n));
}

std::string Trim(std::string_view s) { return LTrim(RTrim(s)); }

std::string UCase(std::string_view s) { return mapCps(s, upperCp); }
std::string LCase(std::string_view s) { return mapCps(s, lowerCp); }

std::string Space(std::size_t n) { return std::string(n, ' '); }
std::string String(std::size_t n, char c) { return std::string(n, c); }

std::size_t InStr(std::string_view s, std::string_view what, std::size_t start) {
    if (start < 1) start = 1;
    std::size_t b = byteOffset(s, start - 1);
    if (b > s.size()) return 0;
    std::size_t pos = s.find(what, b);
    if (pos == std::string_view::npos) return 0;
    return Len(s.substr(0, pos)) + 1;
}

std::string Replace(std::string_view s, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(s);
    std::string out;
    std::size_t i = 0;
    for (;;) {
        std::size_t p = s.find(what, i);
        if (p == std::string_view::npos) break;
        out.append(s.substr(i, p - i));
        out.append(with);
        i = p + what.size();
    }
    out.append(s.substr(i));
    return out;
}

std::string PadRight(std::string_view s, std::size_t n) {
    std::string out = Left(s, n);
    std::size_t len = Len(out);
    if (len < n) out.append(n - len, ' ');
    return out;
}

std::string PadLeft(std::string_view s, std::size_t n) { return Right(Space(n) + std::string(s), n); }

std::vector<std::string> Split(std::string_view s, char sep) {
    std::vector<std::string> out;
    std::size_t i = 0;
    for (;;) {
        std::size_t p = s.find(sep, i);
        out.emplace_back(s.substr(i, p == std::string_view::npos ? std::string_view::npos : p - i));
        if (p == std::string_view::npos) break;
        i = p + 1;
    }
    return out;
}

std::string KropkaZamiastPrzecinka(std::string& s) {
    for (char& c : s)
        if (c == ',') c = '.';
    return s;
}

std::string KropkaZamiastPrzecinka(std::string&& s) {
    std::string t = std::move(s);
    return KropkaZamiastPrzecinka(t);
}

namespace {

// A number text already checked for its form (an optional sign, digits with at most one point,
// an optional exponent), converted as strtod converts it in the C locale: the nearest double.
// Beyond the range of a double the result is infinite as strtod's; an underflow is left to
// strtod itself, which gives the denormal or zero it always gave.
double convert(std::string_view t) {
    if (!t.empty() && t.front() == '+') t.remove_prefix(1);
    double v = 0;
    const auto r = std::from_chars(t.data(), t.data() + t.size(), v, std::chars_format::general);
    if (r.ec == std::errc() && r.ptr == t.data() + t.size()) return v;
    return std::strtod(std::string(t).c_str(), nullptr);
}

}  // namespace

double Val(std::string_view s) {
    // The digits taken, blanks between them dropped: at most as long as the text itself.
    char small[64];
    std::string large;
    char* digits = small;
    if (s.size() + 2 > sizeof small) {
        large.resize(s.size() + 2);
        digits = large.data();
    }
    std::size_t n = 0;
    std::size_t i = 0;
    while (i < s.size() && (s[i] == ' ' || s[i] == '\t' || s[i] == '\n' || s[i] == '\r')) ++i;
    if (i < s.size() && (s[i] == '-' || s[i] == '+')) digits[n++] = s[i++];
    bool point = false, any = false;
    for (; i < s.size(); ++i) {
        char c = s[i];
        if (c == ' ' || c == '\t') continue;
        if (c >= '0' && c <= '9') {
            digits[n++] = c;
            any = true;
        } else if (c == '.' && !point) {
            digits[n++] = c;
            point = true;
        } else if ((c == 'E' || c == 'e' || c == 'D' || c == 'd') && any) {
            std::size_t j = i + 1;
            std::size_t e = n;
            digits[e++] = 'e';
            if (j < s.size() && (s[j] == '-' || s[j] == '+')) digits[e++] = s[j++];
            bool expDigits = false;
            while (j < s.size() && s[j] >= '0' && s[j] <= '9') {
                digits[e++] = s[j++];
                expDigits = true;
            }
            if (expDigits) n = e;
            break;
        } else {
            break;
        }
    }
    if (!any) return 0.0;
    double v = convert(std::string_view(digits, n));
    if (!std::isfinite(v))
        throw Error(err::Overflow, "Val(\"" + std::string(s) + "\")", "liczba \"" + std::string(s) + "\" jest za duża");
    return v;
}

int toInt(double v, const std::string& step) {
    if (!(v > -2147483649.0 && v < 2147483648.0))
        throw Error(err::Overflow, step, "liczba " + std::to_string(v) + " nie mieści się w liczbie całkowitej");
    return static_cast<int>(v);
}

int ValInt(std::string_view s, const std::string& step) {
    try {
        return toInt(Val(s), step);
    } catch (const Error&) {
        throw Error(err::Overflow, step, "\"" + std::string(s) + "\" nie mieści się w liczbie całkowitej");
    }
}

namespace {

std::string_view trimmed(std::string_view s) {
    while (!s.empty() && isBlank(s.front())) s.remove_prefix(1);
    while (!s.empty() && isBlank(s.back())) s.remove_suffix(1);
    return s;
}

// Whether a text without blanks around it is a number as the strict conversion takes it.
bool numberForm(std::string_view t) {
    if (t.empty()) return false;
    std::size_t i = 0;
    if (t[i] == '-' || t[i] == '+') ++i;
    bool digits = false, point = false;
    for (; i < t.size(); ++i) {
        char c = t[i];
        if (c >= '0' && c <= '9') {
            digits = true;
        } else if (c == '.' && !point) {
            point = true;
        } else if ((c == 'E' || c == 'e') && digits) {
            std::size_t j = i + 1;
            if (j < t.size() && (t[j] == '-' || t[j] == '+')) ++j;
            if (j >= t.size()) return false;
            for (; j < t.size(); ++j)
                if (t[j] < '0' || t[j] > '9') return false;
            return true;
        } else {
            return false;
        }
    }
    return digits;
}

}  // namespace

bool isNumeric(std::string_view s) { return numberForm(trimmed(s)); }

NumberText parseNumber(std::string_view s, double& v) {
    const std::string_view t = trimmed(s);
    if (t.empty()) return NumberText::Empty;
    if (!numberForm(t)) return NumberText::NotNumber;
    v = convert(t);
    return std::isfinite(v) ? NumberText::Ok : NumberText::TooLarge;
}

void throwNumber(NumberText why, std::string_view s, const std::string& step) {
    if (why == NumberText::TooLarge)
        throw Error(err::Overflow, step, "liczba \"" + std::string(trimmed(s)) + "\" jest za duża");
    throw Error(err::TypeMismatch, step, "\"" + std::string(s) + "\" nie jest liczbą");
}

double toDouble(std::string_view s, const std::string& step) {
    double v = 0;
    const NumberText r = parseNumber(s, v);
    if (r != NumberText::Ok) throwNumber(r, s, step);
    return v;
}

double toDoubleOrZero(std::string_view s, const std::string& step) {
    double v = 0;
    const NumberText r = parseNumber(s, v);
    if (r == NumberText::Empty) return 0.0;
    if (r != NumberText::Ok) throwNumber(r, s, step);
    return v;
}

}  // namespace core
