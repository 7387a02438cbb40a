#include <gtest/gtest.h>

#include <map>

#include "core/error.h"
#include "core/text.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "support/tempdir.h"

using namespace payinputs;
using testing_support::readBytes;
using testing_support::TempDir;

namespace {

// The 155 lines of a pay record: every item as the file holds it, the named ones replaced.
std::vector<std::string> linie(const std::map<int, std::string>& zmiany) {
    std::vector<std::string> v(Pay::Count);
    for (int n = 1; n <= Pay::Count; ++n) {
        switch (Pay::schema().fields[n - 1].type) {
        case core::FieldType::String: v[n - 1] = "\"\""; break;
        case core::FieldType::Variant: v[n - 1] = ""; break;
        default: v[n - 1] = "0";
        }
    }
    v[Pay::Poczatek - 1] = "\"<Poczatek>\"";
    v[Pay::Koniec - 1] = "\"<Koniec>\"";
    for (auto& [n, s] : zmiany) v[n - 1] = s;
    return v;
}

std::string tekst(const std::vector<std::string>& v) {
    std::string s;
    for (const auto& l : v) s += l + "\r\n";
    return s;
}

}  // namespace

TEST(PayFile, RoundTripByteForByteQuotedAndBareVariants) {
    // The same fields once quoted and once bare, empty variants as empty lines and as "", and
    // both end markers.
    std::string file = tekst(linie({{Pay::Nazwisko, "\"NOWAK\""},
                                    {Pay::Pesel, "\"75031412317\""},
                                    {Pay::Zasadnicza, "5200"},
                                    {Pay::Premia, "0.2"},
                                    {Pay::ROR, "\"9999\""},
                                    {Pay::BruttoOd01, "12500.5"},
                                    {Pay::KodPrzerwy1, "\"331\""},
                                    {Pay::Obywatelstwo, "\"POLSKIE\""},
                                    {Pay::Numer, "1"}})) +
                       tekst(linie({{Pay::Nazwisko, "\"KOWALENKO, Olena\""},
                                    {Pay::Pesel, ""},
                                    {Pay::Zasadnicza, "3600.55"},
                                    {Pay::ROR, "9999"},
                                    {Pay::BruttoOd01, "\"12500.5\""},
                                    {Pay::KodPrzerwy1, "331"},
                                    {Pay::Dokument, "\"FP123456\""},
                                    {Pay::Obywatelstwo, "\"UKRAIŃSKIE\""},
                                    {Pay::Rezerwa120, "\"\""},
                                    {Pay::Numer, "2"},
                                    {Pay::Koniec, "\"<koniec>\""}}));
    TempDir dir;
    auto path = dir / "a.dta";
    core::commitFile(path, file);
    auto recs = Pay::readAll(path);
    ASSERT_EQ(recs.size(), 2u);
    EXPECT_EQ(recs[0].item(Pay::ROR).kind, core::Item::Quoted);
    EXPECT_EQ(recs[1].item(Pay::ROR).kind, core::Item::Bare);
    EXPECT_DOUBLE_EQ(recs[0].d(Pay::ROR), recs[1].d(Pay::ROR));
    EXPECT_DOUBLE_EQ(recs[1].d(Pay::BruttoOd01), 12500.5);
    EXPECT_EQ(recs[1].item(Pay::Pesel).kind, core::Item::Empty);
    EXPECT_EQ(recs[1].item(Pay::Rezerwa120).kind, core::Item::Quoted);
    EXPECT_EQ(recs[1].s(Pay::Nazwisko), "KOWALENKO, Olena");
    EXPECT_FLOAT_EQ(recs[1].f(Pay::Zasadnicza), 3600.55f);
    EXPECT_EQ(recs[0].s(Pay::Koniec), "<Koniec>");
    EXPECT_EQ(recs[1].s(Pay::Koniec), "<koniec>");
    core::writeAll(path, recs, "TYMCZ.dta");
    EXPECT_EQ(readBytes(path), core::toCp1250(file));
    EXPECT_FALSE(std::filesystem::exists(dir / "TYMCZ.dta"));
}

TEST(PayFile, EndMarkerSpellingsReadAlike) {
    auto lower = core::SeqReader::fromText(tekst(linie({{Pay::Zasadnicza, "3000"}, {Pay::Koniec, "\"<koniec>\""}})));
    auto upper = core::SeqReader::fromText(tekst(linie({{Pay::Zasadnicza, "3000"}})));
    auto a = core::readAll(lower, Pay::schema());
    auto b = core::readAll(upper, Pay::schema());
    ASSERT_EQ(a.size(), 1u);
    ASSERT_EQ(b.size(), 1u);
    for (int n = 1; n < Pay::Koniec; ++n) EXPECT_EQ(a[0].item(n), b[0].item(n)) << n;
}

TEST(PayFile, ShortRecordAndLetterInAmount) {
    auto shortFile = tekst(linie({}));
    shortFile.resize(shortFile.size() - std::string("\"<Koniec>\"\r\n").size());
    auto in = core::SeqReader::fromText(shortFile, "a.dta");
    try {
        core::readAll(in, Pay::schema());
        FAIL() << "a record of 154 items was read";
    } catch (const core::Error& e) {
        EXPECT_EQ(e.Number, core::err::InputPastEnd);
    }
    auto letter = core::SeqReader::fromText(tekst(linie({{Pay::Premia, "2O0"}})), "a.dta");
    try {
        core::readAll(letter, Pay::schema());
        FAIL() << "a letter in an amount was read";
    } catch (const core::Error& e) {
        EXPECT_EQ(e.Number, core::err::TypeMismatch);
        EXPECT_NE(e.Step.find("Premia"), std::string::npos);
    }
}

TEST(PayFile, IdentifierByCitizenship) {
    struct {
        const char* obywatelstwo;
        const char* klucz;
    } cases[] = {
        {"POLSKIE", "75031412317"}, {"", "75031412317"}, {"0", "75031412317"},
        {"polskie", "75031412317"}, {"UKRAIŃSKIE", "FP123456"}, {"BIAŁORUSKIE", "FP123456"},
    };
    for (const auto& c : cases) {
        auto in = core::SeqReader::fromText(tekst(linie({{Pay::Pesel, "\"75031412317\""},
                                                         {Pay::Dokument, "\"FP123456\""},
                                                         {Pay::Obywatelstwo, std::string("\"") + c.obywatelstwo + "\""}})));
        auto r = core::readRecord(in, Pay::schema());
        EXPECT_EQ(kluczOsoby(r), c.klucz) << c.obywatelstwo;
        // A rewritten record carries the citizenship as it was read.
        TempDir dir;
        core::commitFile(dir / "a.dta", tekst(linie({{Pay::Obywatelstwo, std::string("\"") + c.obywatelstwo + "\""}})));
        Pay::replace(dir / "a.dta", "inny", [](core::Record&) {}, "TYMCZ.dta");
        const std::string zapisane = Pay::readAll(dir / "a.dta")[0].s(Pay::Obywatelstwo);
        EXPECT_EQ(zapisane, *c.obywatelstwo == '\0' || *c.obywatelstwo == '0' ? "POLSKIE" : c.obywatelstwo);
    }
}

TEST(PayFile, NewRecordDefaults) {
    core::Record r = nowyRekordPlacowy(17, 8);
    EXPECT_EQ(r.s(Pay::Poczatek), "<Poczatek>");
    EXPECT_EQ(r.s(Pay::Koniec), "<Koniec>");
    EXPECT_EQ(r.item(Pay::ZastosStaPOD), core::Item::bare("0.17"));
    for (int n : {Pay::Rentowa, Pay::Emerytalna, Pay::Chorobowa, Pay::Zdrowotna, Pay::Wypadkowa})
        EXPECT_EQ(r.item(n), core::Item::bare("1")) << r.fieldName(n);
    for (int n : {Pay::Zasadnicza, Pay::Stazowy, Pay::KosztyUzyskania, Pay::Rezerwa43, Pay::WskaznikEtatu})
        EXPECT_EQ(r.item(n), core::Item::bare("0")) << r.fieldName(n);
    for (int n : {Pay::Rezerwa89, Pay::Rezerwa106, Pay::BruttoOd01, Pay::EFPomostowy})
        EXPECT_EQ(r.item(n), core::Item::bare("0")) << r.fieldName(n);
    for (int n : {Pay::DataZatrudnienia, Pay::DodatekStazowy, Pay::Dojazd, Pay::Rezerwa88, Pay::Rezerwa91,
                  Pay::Rezerwa94, Pay::DataZatrudnieniaDO, Pay::Rezerwa150, Pay::Dokument})
        EXPECT_EQ(r.item(n), core::Item::quoted("")) << r.fieldName(n);
    EXPECT_EQ(r.s(Pay::Obywatelstwo), "POLSKIE");
    EXPECT_EQ(r.i(Pay::Numer), 8);
}

TEST(DemoData, ListsReadAndRewriteUnchanged) {
    namespace fs = std::filesystem;
    const fs::path demo = fs::path(PENSJA_DEMO) / "DEMO";
    for (const char* lista : {"a", "p"}) {
        auto per = demo / "Person" / (std::string(lista) + ".per");
        auto dta = demo / "Bazy" / (std::string(lista) + ".dta");
        auto osoby = personnel::Osoba::readAll(per);
        auto place = Pay::readAll(dta);
        EXPECT_GE(osoby.size(), 6u);
        EXPECT_LE(osoby.size(), 10u);
        ASSERT_EQ(osoby.size(), place.size());
        int cudzoziemcy = 0, niepelne = 0, dojezdzajacy = 0;
        for (std::size_t i = 0; i < osoby.size(); ++i) {
            EXPECT_EQ(personnel::kluczOsoby(osoby[i]), kluczOsoby(place[i])) << lista << " " << i;
            EXPECT_EQ(osoby[i].i(personnel::Osoba::Numer), static_cast<long>(i + 1));
            EXPECT_EQ(place[i].i(Pay::Numer), static_cast<long>(i + 1));
            if (personnel::kluczOsoby(osoby[i]) != osoby[i].s(personnel::Osoba::Pesel)) ++cudzoziemcy;
            if (osoby[i].s(personnel::Osoba::Etat) != "  1  1") ++niepelne;
            if (place[i].s(Pay::Dojazd) == "1") ++dojezdzajacy;
        }
        EXPECT_EQ(cudzoziemcy, 1) << lista;
        EXPECT_GE(niepelne, 1) << lista;
        EXPECT_EQ(dojezdzajacy, 1) << lista;
        // The files are in the exact form the writer gives.
        TempDir dir;
        core::writeAll(dir / "x.per", osoby);
        core::writeAll(dir / "x.dta", place);
        EXPECT_EQ(readBytes(dir / "x.per"), readBytes(per)) << lista;
        EXPECT_EQ(readBytes(dir / "x.dta"), readBytes(dta)) << lista;
    }
}
