#include "printing/spool.h"

#include <cstdint>
#include <string>

#include "core/error.h"

namespace printing {

namespace {

// A page is the byte 'P'; a line is 'L', its boldness, its size, its font and its text, each
// text with its length before it.
void put(std::FILE* f, const void* p, std::size_t n) {
    if (n && std::fwrite(p, 1, n, f) != n)
        throw core::Error(core::err::PathFileAccess, "wydruk", "błąd zapisu pliku tymczasowego wydruku");
}

void putText(std::FILE* f, const std::string& s) {
    const std::uint32_t n = static_cast<std::uint32_t>(s.size());
    put(f, &n, sizeof n);
    put(f, s.data(), s.size());
}

void get(std::FILE* f, void* p, std::size_t n) {
    if (n && std::fread(p, 1, n, f) != n)
        throw core::Error(core::err::PathFileAccess, "wydruk", "błąd odczytu pliku tymczasowego wydruku");
}

void getText(std::FILE* f, std::string& s) {
    std::uint32_t n = 0;
    get(f, &n, sizeof n);
    s.resize(n);
    get(f, s.data(), n);
}

}  // namespace

Spool::Spool() : plikTymczasowy(std::tmpfile()) {
    if (!plikTymczasowy) throw core::Error(core::err::PathFileAccess, "wydruk", "nie można utworzyć pliku tymczasowego wydruku");
}

Spool::~Spool() { std::fclose(plikTymczasowy); }

void Spool::beginPage() {
    put(plikTymczasowy, "P", 1);
    ++liczbaStron;
    dopasowanie.beginPage();
}

void Spool::line(const core::PrintLine& l) {
    const unsigned char bold = l.bold ? 1 : 0;
    put(plikTymczasowy, "L", 1);
    put(plikTymczasowy, &bold, 1);
    put(plikTymczasowy, &l.size, sizeof l.size);
    putText(plikTymczasowy, l.font);
    putText(plikTymczasowy, l.text);
    dopasowanie.line(l);
}

void Spool::replay(core::PageSink& to) const {
    if (std::fflush(plikTymczasowy) != 0 || std::fseek(plikTymczasowy, 0, SEEK_SET) != 0)
        throw core::Error(core::err::PathFileAccess, "wydruk", "błąd odczytu pliku tymczasowego wydruku");
    core::PrintLine l;
    for (int c; (c = std::getc(plikTymczasowy)) != EOF;) {
        if (c == 'P') {
            to.beginPage();
            continue;
        }
        unsigned char bold = 0;
        get(plikTymczasowy, &bold, 1);
        l.bold = bold != 0;
        get(plikTymczasowy, &l.size, sizeof l.size);
        getText(plikTymczasowy, l.font);
        getText(plikTymczasowy, l.text);
        to.line(l);
    }
    std::fseek(plikTymczasowy, 0, SEEK_END);
}

std::vector<core::TextPrinter::Page> Spool::pages() const {
    struct Strony : core::PageSink {
        std::vector<core::TextPrinter::Page> p;
        void beginPage() override { p.emplace_back(); }
        void line(const core::PrintLine& l) override { p.back().push_back(l); }
    } s;
    replay(s);
    return s.p;
}

void Spool::clear() {
    std::FILE* f = std::tmpfile();
    if (!f) throw core::Error(core::err::PathFileAccess, "wydruk", "nie można utworzyć pliku tymczasowego wydruku");
    std::fclose(plikTymczasowy);
    plikTymczasowy = f;
    liczbaStron = 0;
    dopasowanie = SheetFit{};
}

}  // namespace printing
