#include "personnel/sortuj.h"

#include <algorithm>
#include <filesystem>

#include "core/paths.h"
#include "core/text.h"
#include "personnel/person_record.h"

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;
using core::Icon;

namespace personnel {

namespace {

const char* const kNaglowki[SortujKadroweScreen::kKolumny] = {
    "NrIdent", "Nazwisko pracownika ", "Imie    ", "Drugie Imie", "Pesel", "NIP", "DowodOs", "KodUbezp",
    "KodWykszt", "DataUrodz", "MiejsceUr", "Imie Ojca ", "Imie Matki", "Kod", "Miejscowość", "Ulica", "NrDomu",
    "Lokal", "Gmina", "Powiat", "Województwo", "Etat", "Grupa", "Telefon", "Urząd skarbowy", "Oddział ZUS",
    "Poczta", "Rezerwa", "Paszport", "Mail", "Komórka", "Skr.poczt.", "Nr.Ubezp.", "Obywatelstwo", "DataZatrud",
    "FP", "Nr Id", "FGŚP", "Status", "Numer"};

const int kSzerokosci[SortujKadroweScreen::kKolumny] = {6,  24, 14, 12, 11, 11, 11, 8,  9,  10, 14, 10, 10, 6,
                                                       16, 16, 6,  5,  14, 14, 14, 6,  5,  12, 24, 20, 14, 6,
                                                       10, 20, 12, 8,  10, 12, 21, 3,  5,  4,  5,  5};

// Decodes the next character of a UTF-8 text.
char32_t nastepny(const std::string& s, std::size_t& i) {
    unsigned char c = static_cast<unsigned char>(s[i]);
    int dalej = c < 0x80 ? 0 : (c >> 5) == 6 ? 1 : (c >> 4) == 14 ? 2 : (c >> 3) == 30 ? 3 : 0;
    char32_t cp = dalej == 0 ? c : c & (0x3F >> dalej);
    ++i;
    for (int k = 0; k < dalej && i < s.size(); ++k, ++i) cp = (cp << 6) | (static_cast<unsigned char>(s[i]) & 0x3F);
    return cp;
}

// The weight of a character in the Polish alphabet (the text already upper-cased).
int waga(char32_t c) {
    static const char32_t kAlfabet[] = {U'A', U'Ą', U'B', U'C', U'Ć', U'D', U'E', U'Ę', U'F', U'G', U'H',
                                        U'I', U'J', U'K', U'L', U'Ł', U'M', U'N', U'Ń', U'O', U'Ó', U'P',
                                        U'Q', U'R', U'S', U'Ś', U'T', U'U', U'V', U'W', U'X', U'Y', U'Z',
                                        U'Ź', U'Ż'};
    for (std::size_t i = 0; i < std::size(kAlfabet); ++i)
        if (kAlfabet[i] == c) return 200 + static_cast<int>(i);
    if (c < 128) return static_cast<int>(c);
    return 1000 + static_cast<int>(c);
}

}  // namespace

bool przedWSortowaniu(const std::string& a, const std::string& b) {
    const bool na = core::isNumeric(a), nb = core::isNumeric(b);
    if (na && nb) return core::Val(a) < core::Val(b);
    if (na != nb) return na;
    const std::string ua = core::UCase(a), ub = core::UCase(b);
    std::size_t i = 0, j = 0;
    while (i < ua.size() && j < ub.size()) {
        int wa = waga(nastepny(ua, i)), wb = waga(nastepny(ub, j));
        if (wa != wb) return wa < wb;
    }
    return i >= ua.size() && j < ub.size();
}

SortujKadroweScreen::SortujKadroweScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmSortujKadrowe", "Sortowanie zbioru "), s(session) {
    lbOpis.at(0, 0, 4);
    lbOpis.Caption = "Podwójne kliknięcie w nazwisko pozwala wpisać nowy numer kolejny pracownika.";
    MSFlexGrid7.at(1, 0, 4).width(140);
    CmdSortujIP.at(2, 0);
    CmdSortujwgNazwiska.at(2, 1);
    cmdZapiszPosortowane.at(2, 2);
    cmdKoniec.at(2, 3);
    CmdSortujIP.Click = [this] { CmdSortujIP_Click(); };
    CmdSortujwgNazwiska.Click = [this] { CmdSortujwgNazwiska_Click(); };
    MSFlexGrid7.DblClick = [this] { MSFlexGrid7_DblClick(); };
    cmdZapiszPosortowane.Click = [this] { cmdZapiszPosortowane_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
    MSFlexGrid7.setGrid(1, kKolumny);
    for (int c = 0; c < kKolumny; ++c) {
        MSFlexGrid7.TextMatrix(0, c) = kNaglowki[c];
        MSFlexGrid7.ColWidth[static_cast<std::size_t>(c)] = kSzerokosci[c];
    }
}

void SortujKadroweScreen::Load() {
    Caption = "Sortowanie zbioru " + s.NazwaZbioru;
    const fs::path plik = Osoba::path(s);
    if (!core::fileExists(plik)) {
        ui.msgBox("Brak zbioru kadrowego listy " + s.NazwaZbioru + " - nie ma czego sortować.", Buttons::OK,
                  Icon::Exclamation, "Sortowanie zbioru");
        Unload();
        return;
    }
    guarded([&] {
        rekordy = Osoba::readAll(plik);
        MSFlexGrid7.setGrid(static_cast<int>(rekordy.size()) + 1, kKolumny);
        for (int c = 0; c < kKolumny; ++c) MSFlexGrid7.TextMatrix(0, c) = kNaglowki[c];
        wierszeSiatki.clear();
        for (std::size_t i = 0; i < rekordy.size(); ++i) {
            const int wiersz = static_cast<int>(i) + 1;
            MSFlexGrid7.TextMatrix(wiersz, kKolNrIdent) = rekordy[i].s(Osoba::NumerIP);
            for (int n = Osoba::Nazwisko; n <= Osoba::Numer; ++n) MSFlexGrid7.TextMatrix(wiersz, n - 1) = rekordy[i].s(n);
            wierszeSiatki.push_back(i);
        }
        if (!rekordy.empty()) {
            MSFlexGrid7.Row = 1;
            MSFlexGrid7.Col = kKolNazwisko;
        }
    });
}

void SortujKadroweScreen::sortuj(int kolumna) {
    core::Control& g = MSFlexGrid7;
    std::vector<int> kolejnosc;
    for (int r = 1; r < g.Rows; ++r) kolejnosc.push_back(r);
    std::stable_sort(kolejnosc.begin(), kolejnosc.end(),
                     [&](int a, int b) { return przedWSortowaniu(g.Cells[a][kolumna], g.Cells[b][kolumna]); });
    std::vector<std::vector<std::string>> komorki{g.Cells[0]};
    std::vector<std::size_t> wiersze;
    for (int r : kolejnosc) {
        komorki.push_back(g.Cells[r]);
        wiersze.push_back(wierszeSiatki[static_cast<std::size_t>(r - 1)]);
    }
    g.Cells = std::move(komorki);
    wierszeSiatki = std::move(wiersze);
}

void SortujKadroweScreen::CmdSortujIP_Click() { sortuj(kKolNumerIP); }

void SortujKadroweScreen::CmdSortujwgNazwiska_Click() { sortuj(kKolNazwisko); }

void SortujKadroweScreen::MSFlexGrid7_DblClick() {
    core::Control& g = MSFlexGrid7;
    if (g.Col != kKolNazwisko || g.Row < 1 || g.Row >= g.Rows) return;
    const int r = g.Row;
    std::string prompt = "Wpisz nowy nr kolejny pracownika " + g.TextMatrix(r, kKolNazwisko) + " " +
                         g.TextMatrix(r, kKolNazwisko + 1) + "   Aktualny nr = " + std::to_string(r) + " / " +
                         g.TextMatrix(r, kKolNrIdent);
    auto nowy = ui.inputBox(prompt, "Nowy numer !" + std::string(" pozycja "));
    std::string n = core::Trim(nowy.value_or(""));
    if (n.empty() || n == "0") return;
    g.TextMatrix(r, kKolNrIdent) = n;
    g.TextMatrix(r, kKolNumerIP) = n;
}

void SortujKadroweScreen::cmdZapiszPosortowane_Click() {
    if (ui.msgBox("Czy chcesz zapisać zmiany?", Buttons::YesNo, Icon::Question, "Zapis posortowanego zbioru") !=
        Answer::Yes)
        return;
    guarded([&] {
        core::Control& g = MSFlexGrid7;
        std::vector<core::Record> wynik;
        for (int r = 1; r < g.Rows; ++r) {
            core::Record rec = rekordy[wierszeSiatki[static_cast<std::size_t>(r - 1)]];
            // The values as the grid holds them; an unchanged value keeps its form in the file.
            for (int n = Osoba::Nazwisko; n < Osoba::Numer; ++n) {
                const std::string& komorka = g.TextMatrix(r, n - 1);
                if (komorka != rec.s(n)) rec.set(n, komorka);
            }
            rec.set(Osoba::Poczatek, "<Poczatek>");
            rec.set(Osoba::Numer, static_cast<long>(r));
            rec.set(Osoba::Koniec, "<Koniec>");
            wynik.push_back(std::move(rec));
        }
        const fs::path plik = Osoba::path(s);
        core::writeAll(plik, wynik, plik.stem().string() + ".tym");
        for (int r = 1; r < g.Rows; ++r) g.TextMatrix(r, Osoba::Numer - 1) = std::to_string(r);
        rekordy = std::move(wynik);
        for (std::size_t i = 0; i < wierszeSiatki.size(); ++i) wierszeSiatki[i] = i;
    });
}

}  // namespace personnel
