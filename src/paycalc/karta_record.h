// The monthly ledger of a list: karta\<list><RRmm>.dta, records of 177 lines, one for each
// person on the list, in the order of the personnel file. Blank positions are always written
// empty, whatever the source holds.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace paycalc {

namespace Karta {
enum : int {
    Poczatek = 1, Nazwisko, Imie, Klucz, KodUbezpieczenia, Zasadnicza, Funkcyjny, Stazowy, Premia, Specjalny,
    Inny, Motywacyjny, Wiejski, Specjalistyczny, Wychowawczy, Trudnosciowy, Ekwiwalent, Nocny, Wyrownania,
    Szkodliwy, StawkaZastosowana, DataZatrudnienia, OpcjaStazowy, OpcjaWspolne, OpcjaSamotna, WskTabeli, NaROR,
    OpcjaRORGodziny, OpcjaRORDodatki, KosztyUzyskania, KwotaUlgi, Mieszkaniowy, OpcjaDojezdzajacy,
    UlgaInwestycyjna, StawkaPodatku, NumerKonta, ZFMPozyczka, ZFMRata, KZPWklady, KZPPozyczka, KZPRata,
    KZPSkladka, ZasilkiDoROR, PotraceniaInne, ZwiazekZawodowy, Solidarnosc, PZU, Potracenie2, Potracenie3,
    Potracenie1, Dokument, Obywatelstwo, ZasilekPielegnacyjny, ZasilekRodzinny, ZasilekWychowawczy, ZasilekZUS,
    Zasilek5, Zasilek6, SredniaCH1, LiczbaDni1, OkresOd1, OkresDo1, KodPrzerwy1, ChPr1, SredniaCH2, LiczbaDni2,
    OkresOd2, OkresDo2, KodPrzerwy2, ChPr2, SredniaCH3, LiczbaDni3, OkresOd3, OkresDo3, KodPrzerwy3, ChPr3,
    SredniaCH4, LiczbaDni4, OkresOd4, OkresDo4, KodPrzerwy4, ChPr4, KwotaLinii1, KwotaLinii2, KwotaLinii3,
    KwotaLinii4, Grupa, Rezerwa88, Podatek, Rezerwa90, Rezerwa91, Rezerwa92, Rezerwa93, Rezerwa94,
    SkladkaWypadkowa, Rezerwa96, Rezerwa97, Rezerwa98, Rezerwa99, DataZatrudnieniaDo, SkladkaRentowa,
    Rezerwa102, Rezerwa103, Rezerwa104, Rezerwa105, Rezerwa106, SkladkaEmerytalna, Rezerwa108, Rezerwa109,
    Rezerwa110, Rezerwa111, Rezerwa112, Rezerwa113, Rezerwa114, Rezerwa115, DniUrlopu, StawkaUrlopowa, Kod,
    Miejscowosc, Ulica, NrDomu, Lokal, Rezerwa123, Rezerwa124, Rezerwa125, DataUrodzenia, StawkaZdrowotna30,
    SredniaChorobowa, DniChorobyOd01, BruttoOd01, SkladkaChorobowa, SkladkaZdrowotnaPozostala, DataListy,
    PodatekNetto, Brutto, PodstawaPodatku, Rezerwa137, PodstawaZdrowotna, StawkaZdrowotna15, PodstawaZUS,
    StopaEmerytalna, StopaRentowa, StopaChorobowa, StopaWypadkowa, Rezerwa145, SkladkaZdrowotnaOdliczana, Etat,
    ChoroboweZUS, DoWyplaty, NaLiscie, ChorobowePracodawca, CheckEmerytalna, CheckRentowa, CheckChorobowa,
    CheckWypadkowa, CheckZdrowotna, EFPomostowy, WskaznikFP, PodstawaFP, FGSP, PodstawaFGSP, DowodOsobisty,
    Rezerwa163, Rezerwa164, UrzadSkarbowy, StopaRentowaPracodawcy, SkladkaRentowaPracodawcy, DniChorobyZakladu,
    DniChorobyZUS, Niedobor, ZasilkiDoKasy, PodatekOdZasilkow, UlgaNiewykorzystana, UlgaZastosowana, Urlopowe,
    ChoroboweWypadkowe, Koniec, Count = Koniec
};
const core::Schema& schema();
// karta\<NazwaZbioru><RRmm>.dta of the session's payer and list date.
std::filesystem::path path(const core::Session& s);
std::filesystem::path path(const core::Session& s, const std::string& list, const std::string& RRmm);
std::vector<core::Record> readAll(const std::filesystem::path& file);
// The number of people in a ledger, told by its lines (a record is one line a field) without
// reading the records: 0 for a missing file.
int liczbaOsob(const std::filesystem::path& file);
}  // namespace Karta

}  // namespace paycalc
