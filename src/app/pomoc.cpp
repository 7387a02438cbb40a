#include "app/pomoc.h"

#include "app/place.h"

namespace app {

PomocScreen::PomocScreen(core::Dialogs& ui, const core::Session& session)
    : Form(ui, "frmPomoc", "Pomoc - pensja, płace i kadry"), s(session) {
    txtPomoc.at(0, 0, 2).width(96);
    txtPomoc.MultiLine = true;
    txtPomoc.Rows = 30;
    txtPomoc.Locked = true;
    cmdZamknij.at(1, 1);
    cmdZamknij.Click = [this] { Unload(); };
}

void PomocScreen::Load() { txtPomoc.Text = tekstPomocy(s); }

std::string tekstPomocy(const core::Session& s) {
    std::filesystem::path folder = std::filesystem::absolute(s.katalog()).lexically_normal();
    if (!folder.has_filename()) folder = folder.parent_path();
    std::string k = s.Katalog.empty() ? std::string("<folder danych>") : folder.string();
    std::string p = s.SkrotPlatnika.empty() ? std::string("<skrót Płatnika>") : s.SkrotPlatnika;
    std::string t;
    t += "PENSJA - płace i kadry, wersja " + std::string(kVersion) + "\n\n";
    t += "PIERWSZE KROKI\n";
    t += "1. Instalacyjne > Dane Płatnika: wybierz Płatnika (przycisk Wybierz) albo dodaj nowego;\n";
    t += "   program zakłada mu folder z podfolderami (Bazy, Person, Karta, Zus, ...).\n";
    t += "2. Instalacyjne > Instalacja list płac: załóż listy płac Płatnika (nazwa, skrót = nazwa plików,\n";
    t += "   grupa, litera zestawu do zbiorówek).\n";
    t += "3. Instalacyjne > Stawki: sprawdź stawki podatku i składek na rok daty listy.\n";
    t += "4. W oknie głównym wpisz datę listy (dd-mm-rrrr) i naciśnij Akceptacja Daty.\n\n";
    t += "MIESIĄC KROK PO KROKU\n";
    t += "1. Listy płac > Wybór grupy: wybierz listę płac i naciśnij Akceptuj wybór.\n";
    t += "2. Na liście pracowników popraw dane osobowe i płacowe, nieobecności, potrącenia i zasiłki.\n";
    t += "3. Utwórz kartotekę miesiąca - program wylicza płace wszystkich osób listy.\n";
    t += "4. Wydrukuj listę płac i paski; rozlicz godziny nadliczbowe, dodatki, trzynastkę, nagrody\n";
    t += "   jubileuszowe i świadczenia urlopowe.\n";
    t += "5. Zerowanie zamyka miesiąc w bazie płac (raty potrąceń, chorobowe, przychód roku).\n";
    t += "6. Zbiorówki: przeniesienie do Płatnika ZUS, przelewy do banków, PIT-4 dla list zestawu\n";
    t += "   (zestaw ustawia Zbiorówki > Wybór zestawu do przetwarzania).\n\n";
    t += "GDZIE SĄ DANE\n";
    t += "Folder danych: " + k + "\n";
    t += "  instalka.dat - hasło, folder danych, bieżący Płatnik, drukarka, zestaw, data listy\n";
    t += "  MojaFirma.txt - rejestr Płatników\n";
    t += "  dane/Dane.dta - stawki lat; dane/tabela.dat - taryfikator płac\n";
    t += "Folder Płatnika: " + k + "/" + p + "\n";
    t += "  instal.dat - katalog list płac\n";
    t += "  Person/<lista>.per - dane osobowe,  Bazy/<lista>.dta - dane płacowe\n";
    t += "  Karta/<lista><RRmm>.dta - kartoteka miesiąca,  Sumy - sumy list\n";
    t += "  Zus, Kdu - dokumenty do ZUS;  Pit4, Pit11, Pit8b - podatki;  ROR, Przelewy - przelewy\n";
    t += "  Urlopy, Godziny - urlopy i czas pracy;  Dodatki, Trzynastki, Jubileu - wypłaty dodatkowe\n\n";
    t += "KOPIA DANYCH\n";
    t += "Narzędzia > Wykonanie kopii programu w innej lokalizacji kopiuje cały folder danych do\n";
    t += "wskazanego folderu (poza folderem danych, np. na dysk zewnętrzny). Rób kopię po każdym miesiącu.\n";
    return t;
}

}  // namespace app
