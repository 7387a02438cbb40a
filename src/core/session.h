// The session: the values every screen reads and writes, passed by reference (never a global).
#pragma once
#include <filesystem>
#include <string>

#include "core/record.h"
#include "core/wynik.h"

namespace core {

// instalka.dat: one line of eight items.
namespace Instalka {
enum : int { Haslo = 1, Katalog, SkrotPlatnika, Drukarka, Rezerwa5, Zestaw, Rezerwa7, DataListy, Count = DataListy };
const Schema& schema();
// Reads the record of `folder`/instalka.dat (Error 53 when missing, 62 when short).
Record read(const std::filesystem::path& folder);
// Rewrites `folder`/instalka.dat with the record, through `tempName` in that folder.
void write(const std::filesystem::path& folder, const Record& rec, const std::string& tempName = "tym.dta");
}  // namespace Instalka

// The rates of the year at double precision, derived from the record of Dane.dta and the
// payer's own accident rate by one function (reference::deriveRates).
struct Stawki {
    double rentowaPracownik = 0;    // Ubrent / 100 (half of it when sklRentPrd is 0)
    double rentowaPracodawca = 0;   // sklRentPrd / 100
    double emerytalna = 0;          // Ubemer / 200, each side's half
    double chorobowa = 0;           // UbChor / 100
    double zdrowotna = 0;           // Kasach / 100
    double zdrowotnaInd = 0;        // stZDI / 100
    double wypadkowa = 0;           // UbWypad / 100, or the payer's own rate / 100 when above 0
    double funduszPracy = 0;        // FuPr / 100
    double fgsp = 0;                // FGSP / 100
    double fep = 0;                 // StaFEP / 100
    double Ubrent = 0;              // the rent rates after the halving, in percent
    double sklRentPrd = 0;
    double Kasach = 0, stZDI = 0;   // the health rates in percent, as the health amounts use them
    double Stawka1 = 0, Stawka2 = 0, Stawka3 = 0;  // tax rates in percent
    double ProgI = 0, ProgII = 0;   // upper ends of the first and second brackets
    double KwotaUlgi = 0;
    double KosztyUzyskania = 0;
    // 32-bit floats in the rates record.
    float PRKu = 0;
    float MInBRUTTO = 0;
    float KwotaGRE = 0;
    float Trzynastka = 0;
    float KwPodstZDRwlasciciela = 0;
};

// The person screen (frmOsoba1) as the pay screens of the person see it: the values of its
// controls when it opens another screen of that person, and the derived fraction of the post.
struct EkranOsoby {
    bool Otwarty = false;          // filled by the person screen (else read from the file)
    std::string Etat, Etat2;       // numerator and denominator of the post (txtEtat, txtEtat2)
    std::string Grupa;             // txtGrupa
    std::string Obywatelstwo;      // the citizenship, "POLSKIE" for empty or "0"
    std::string Paszport;          // txtPaszport
    std::string DataZatrudnienia;  // TxtDataZatrudnienia, dd-mm-rrrr or empty
    double UlamekEtatu = 0;        // numerator / denominator to two decimals (0 without a denominator)
};

struct Session {
    // The working folder, where the start looks for a first copy of instalka.dat.
    std::filesystem::path WorkDir = ".";

    // instalka.dat
    std::string Haslo, Katalog, SkrotPlatnika, Drukarka, Zestaw, DataListy;
    Item Rezerwa5, Rezerwa7;
    std::string HasloPodane;
    std::string Nieaktywny = "   ";

    std::string OkresListy;  // "mmrr" of DataListy
    std::filesystem::path SciezkaDane;

    // The open pay list.
    std::string NazwaZbioru, NazwaListy, Grupa, NumerListy, Rezerwa4;
    std::filesystem::path SciezkaBazy, SciezkaOsob;
    // Printing: the mode (0 the pay list, 1 the payslips), the page counter, which runs on from
    // one print to the next in the same run of the program, and the kind word of the list head.
    int TrybDruku = 0;
    int Strona = 1;
    std::string RodzajListy;

    // The chosen employee.
    std::string KluczOsoby, NazwiskoOsoby, ImieOsoby, KodUbezpieczeniaOsoby;
    std::string NumerOsoby;  // the running number of the person's line on the list screen
    EkranOsoby Osoba;
    int LiczbaOsob = 0;  // the number of people on the open list
    // "N" asks the pay screen to show the record again after it has made one.
    std::string NowyZapis;

    // The folder the bank's listing went to last (offered first the next time).
    std::filesystem::path FolderDyskietki;

    // The payer (a record of MojaFirma.txt), the rates of the year (a record of Dane.dta) and
    // their derived values.
    Record Firma;
    Record Dane;
    Stawki stawki;

    WynikMiesiaca wynik;

    // The data folder; a relative Katalog counts from the working folder.
    std::filesystem::path katalog() const;
    // <Katalog>\<SkrotPlatnika>, resolved whatever the letter case of the folder.
    std::filesystem::path payerFolder() const;
    // A folder or file under the payer's folder, e.g. payerPath({"bazy", "a.dta"}).
    std::filesystem::path payerPath(std::initializer_list<std::string_view> parts) const;
    // The year (last four characters) and month (characters 4-5) of DataListy.
    std::string rok() const;
    std::string miesiac() const;
    // RRmm of the list date: the last two digits of the year and the month.
    std::string RRmm() const;

    // Takes the eight items of instalka.dat into the session / gives them back as a record.
    void takeInstalka(const Record& r);
    Record instalkaRecord() const;
};

}  // namespace core
