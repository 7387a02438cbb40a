#include "zus/rcp_record.h"

#include "core/text.h"
#include "personnel/person_record.h"

using core::FieldType;

namespace zus {

namespace Rcp {

namespace {

constexpr FieldType S = FieldType::String, V = FieldType::Variant, F = FieldType::Float, I = FieldType::Int16,
                    B = FieldType::Blank;

const core::FieldDef kFields[] = {
    {"Lp", S}, {"Nazwisko", S}, {"Imie", S}, {"PESEL", S}, {"KodUbez", S}, {"Etat", S}, {"Rezerwa7", F},
    {"Podst.ZUS", F}, {"PodstChorobowa", F}, {"Podst.Zdro", F}, {"Rezerwa11", B}, {"Rezerwa12", S},
    {"Rezerwa13", S}, {"Skł.Zdro", F}, {"InnyIdentyfikator", S}, {"Obywatelstwo", S}, {"ZasilekZUS", F},
    {"Rezerwa18", F}, {"Il.OsZR", F}, {"Kwota ZR", F}, {"ZasilekWychowawczy", F}, {"Il.OsZP", F}, {"Kwota ZP", F},
    {"KodPrzerwy1", V}, {"Od1", V}, {"Do1", V}, {"Dni1", V}, {"Pusty1", B}, {"Kwota1", V},
    {"KodPrzerwy2", V}, {"Od2", V}, {"Do2", V}, {"Dni2", V}, {"Pusty2", B}, {"Kwota2", V},
    {"KodPrzerwy3", V}, {"Od3", V}, {"Do3", V}, {"Dni3", V}, {"Pusty3", B}, {"Kwota3", V},
    {"KodPrzerwy4", V}, {"Od4", V}, {"Do4", V}, {"Dni4", V}, {"Pusty4", B}, {"Kwota4", V},
    {"Deklarowana1", V}, {"Deklarowana2", V}, {"Deklarowana3", V}, {"Deklarowana4", V}, {"Rezerwa52", B},
    {"Rezerwa53", B}, {"DniA", V}, {"OdA", V}, {"DoA", V}, {"KodA", V}, {"DniB", V}, {"OdB", V}, {"DoB", V},
    {"KodB", V}, {"DniC", V}, {"OdC", V}, {"DoC", V}, {"KodC", V}, {"Rezerwa66", B}, {"Rezerwa67", B},
    {"Rezerwa68", B}, {"Rezerwa69", B}, {"KwotaObnizenia", F}, {"Podatek", F}, {"FlagaEmerytalne", I},
    {"FlagaRentowe", I}, {"FlagaChorobowe", I}, {"FlagaWypadkowe", I}, {"FlagaZdrowotne", I}, {"PodstFGSP", F},
    {"Podst.FPr", F}, {"DowodOsobisty", S}, {"Rezerwa80", B}, {"Rezerwa81", B}, {"Rezerwa82", B},
    {"Rezerwa83", B}, {"WskaznikFP", S},
};
static_assert(std::size(kFields) == Count);

const core::Schema kSchema{"zus\\rcp<RRMM>.dta", kFields, 1};

}  // namespace

const core::Schema& schema() { return kSchema; }

std::filesystem::path path(const core::Session& s) {
    const std::string d = s.DataListy;
    return s.payerPath({"zus", "rcp" + core::Right(d, 2) + core::Mid(d, 4, 2) + ".dta"});
}

std::vector<core::Record> readAll(const std::filesystem::path& file) { return core::readAll(file, kSchema); }

void writeAll(const std::filesystem::path& file, const std::vector<core::Record>& recs, const std::string& tempName) {
    core::writeAll(file, recs, tempName);
}

std::string identyfikator(const core::Record& r) {
    if (core::Left(core::UCase(personnel::obywatelstwo(r.s(Obywatelstwo))), 5) != "POLSK")
        return core::PadRight(r.s(InnyIdentyfikator), 11);
    return r.s(PESEL);
}

}  // namespace Rcp

}  // namespace zus
