#include "payinputs/taryfikator.h"

#include <memory>

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "payinputs/pay_record.h"
#include "payinputs/seniority.h"
#include "reference/catalogue.h"

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;
using core::Icon;

namespace payinputs {

namespace {

constexpr std::array<core::FieldDef, Tabela::kKomorek> kTabela{{
    {"Placa0", core::FieldType::Float},  {"Placa1", core::FieldType::Float},  {"Placa2", core::FieldType::Float},
    {"Placa3", core::FieldType::Float},  {"Placa4", core::FieldType::Float},  {"Placa5", core::FieldType::Float},
    {"Placa6", core::FieldType::Float},  {"Placa7", core::FieldType::Float},  {"Placa8", core::FieldType::Float},
    {"Placa9", core::FieldType::Float},  {"Placa10", core::FieldType::Float}, {"Placa11", core::FieldType::Float},
    {"Placa12", core::FieldType::Float}, {"Placa13", core::FieldType::Float}, {"Placa14", core::FieldType::Float},
    {"Placa15", core::FieldType::Float},
}};

const char* const kStopnie[] = {"Stażysta", "Kontraktowy", "Mianowany", "Dyplomowany"};
const char* const kWiersze[] = {"wyższe mgr z przygotowaniem pedagogicznym", "wyzsze mgr bez przygotowania pedagogicznego",
                                "inne kwalifikacje (wiersz zapasowy)", "inne kwalifikacje (wiersz zapasowy)"};

struct ListaPlac {
    fs::path plik;
    std::string grupa;
    std::vector<core::Record> rekordy;
};

// The pay files of the lists of the set with their group.
std::vector<ListaPlac> wczytajZestaw(core::Session& s, core::Dialogs& ui) {
    std::vector<ListaPlac> listy;
    std::vector<core::Record> linie = reference::Instal::read(s);
    for (const std::string& stem : listyZestawu(s, ui)) {
        int i = reference::Instal::findByStem(linie, stem);
        ListaPlac l{s.payerPath({"bazy", stem + ".dta"}), core::Trim(linie[static_cast<std::size_t>(i)].s(reference::Instal::Grupa)), {}};
        l.rekordy = Pay::readAll(l.plik);
        listy.push_back(std::move(l));
    }
    return listy;
}

// Every list written back, or none: the files written before a failure get their old bytes again.
void zapiszWszystkie(std::vector<ListaPlac>& listy) {
    std::vector<std::pair<fs::path, std::string>> zapisane;
    try {
        for (ListaPlac& l : listy) {
            std::string dawne = core::readFileText(l.plik);
            core::writeAll(l.plik, l.rekordy);
            zapisane.emplace_back(l.plik, std::move(dawne));
        }
    } catch (const core::Error&) {
        for (auto& [plik, dawne] : zapisane) core::commitFile(plik, dawne);
        throw;
    }
}

}  // namespace

const core::Schema& Tabela::schema() {
    static const core::Schema s{"dane\\tabela.dat", kTabela, 1};
    return s;
}

fs::path Tabela::path(const core::Session& s) { return core::resolvePath(s.katalog(), {"dane", "tabela.dat"}); }

std::array<float, Tabela::kKomorek> Tabela::read(const core::Session& s) {
    std::array<float, kKomorek> placa{};
    fs::path plik = path(s);
    if (!core::fileExists(plik)) return placa;
    core::SeqReader in(plik);
    core::Record r = core::readRecord(in, schema());
    for (int i = 0; i < kKomorek; ++i) placa[static_cast<std::size_t>(i)] = r.f(i + 1);
    return placa;
}

void Tabela::write(const core::Session& s, const std::array<float, kKomorek>& placa) {
    core::Record r(schema());
    for (int i = 0; i < kKomorek; ++i) r.set(i + 1, placa[static_cast<std::size_t>(i)]);
    core::writeAll(path(s), {r});
}

int komorkaTabeli(const std::string& wsk, int& stopien) {
    static const std::string kLitery = "SKMD";
    std::string litera = core::UCase(core::Left(wsk, 1));
    std::size_t p = litera.empty() ? std::string::npos : kLitery.find(litera);
    if (p != std::string::npos) stopien = static_cast<int>(p);
    return core::Mid(wsk, 2, 1) == "1" ? stopien : 4 + stopien;
}

std::vector<std::string> listyZestawu(core::Session& s, core::Dialogs& ui) {
    std::vector<std::string> listy;
    for (const core::Record& linia : reference::Instal::read(s)) {
        if (!reference::Instal::wZestawie(linia, s.Zestaw)) continue;
        std::string stem = reference::Instal::stem(linia);
        if (stem.empty()) {
            ui.msgBox("Jeżeli lista nie jest potrzebna lub pusta-usuń ją z systemu", Buttons::OK, Icon::Exclamation,
                      " - Lista nr ");
            continue;
        }
        listy.push_back(stem);
    }
    return listy;
}

void wymienZasadnicza(core::Session& s, core::Dialogs& ui, const std::array<float, Tabela::kKomorek>& placa) {
    if (ui.msgBox("Czy napewno chcesz dokonac zmiany placy zasadniczej  i stażu w zbiorach wybranego zestawu ? ",
                  Buttons::YesNo, Icon::Question, "Wykonać zmiany ? w zbiorach zestawu " + s.Zestaw) != Answer::Yes)
        return;
    std::vector<ListaPlac> listy = wczytajZestaw(s, ui);
    int stopien = 0;
    for (ListaPlac& l : listy)
        for (core::Record& r : l.rekordy) {
            std::string wsk = core::Trim(r.s(Pay::WskTabeli));
            if (wsk.empty()) continue;
            float zasadnicza = placa[static_cast<std::size_t>(komorkaTabeli(wsk, stopien))];
            r.set(Pay::Zasadnicza, zasadnicza);
            Staz st = obliczStaz(r.s(Pay::DataZatrudnienia), s.DataListy, l.grupa, s.SkrotPlatnika);
            r.set(Pay::Stazowy, core::Round2(static_cast<double>(zasadnicza) * st.stazProcent / 100));
        }
    zapiszWszystkie(listy);
    ui.msgBox("Zakończono wymianę płacy zasadniczej i dodatku stażowego we wszystkich zbiorach zestawu ", Buttons::OK,
              Icon::Information, "Zmiana płacy zasadniczej i dodatku stażowego !");
}

void zmianaKosztow(core::Session& s, core::Dialogs& ui) {
    std::vector<ListaPlac> listy = wczytajZestaw(s, ui);
    if (listy.empty()) {
        ui.msgBox("Nie dokonano zmian w żadnym zbiorze - ustal symbole list w Zbiorowki>Wybór zestawów do przetwarzania np.AB ",
                  Buttons::OK, Icon::Exclamation, "Bład ustawienia");
        return;
    }
    const core::Stawki& st = s.stawki;
    for (ListaPlac& l : listy)
        for (core::Record& r : l.rekordy) {
            if (r.f(Pay::KosztyUzyskania) > 0)
                r.set(Pay::KosztyUzyskania, core::Trim(r.s(Pay::Dojazd)) == "1" ? static_cast<double>(st.PRKu) : st.KosztyUzyskania);
            if (r.f(Pay::KwotaUlgi) > 0) r.set(Pay::KwotaUlgi, st.KwotaUlgi);
            if (r.d(Pay::ZastosStaPOD) > 0) r.set(Pay::ZastosStaPOD, st.Stawka1);
        }
    zapiszWszystkie(listy);
    ui.msgBox("Zakończono wymianę kosztów uzyskania we wszystkich zbiorach zestawu " + s.Zestaw, Buttons::OK,
              Icon::Information, "Zmiana kosztów uzyskania i ulgi podatkowej !");
}

TaryfikatorScreen::TaryfikatorScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmTaryfikator", "Taryfikator zasadniczej i stażu "), s(session) {
    lbKwalifikacje.at(0, 0);
    lbStopien.at(0, 1, 4);
    for (int k = 0; k < 4; ++k) {
        naglowki.push_back(std::make_unique<core::Control>(this, "lbStopien" + std::to_string(k), core::Kind::Label, kStopnie[k]));
        naglowki.back()->at(1, k + 1);
    }
    for (int w = 0; w < 4; ++w) {
        naglowki.push_back(std::make_unique<core::Control>(this, "lbWiersz" + std::to_string(w), core::Kind::Label, kWiersze[w]));
        naglowki.back()->at(w + 2, 0);
        for (int k = 0; k < 4; ++k) {
            int i = w * 4 + k;
            txtPlaca.push_back(std::make_unique<core::Control>(this, "txtPlaca(" + std::to_string(i) + ")", core::Kind::TextBox));
            txtPlaca.back()->at(w + 2, k + 1).width(10);
        }
    }
    txtZestaw.at(6, 0).label("Zestaw list:").width(6);
    txtZestaw.Locked = true;
    CmdZapisz.at(7, 1);
    cmdWymienZasadnicza.at(7, 2, 2);
    Command3.at(7, 4);
    CmdZapisz.Click = [this] { CmdZapisz_Click(); };
    cmdWymienZasadnicza.Click = [this] { cmdWymienZasadnicza_Click(); };
    Command3.Click = [this] { Unload(); };
}

void TaryfikatorScreen::Load() {
    txtZestaw.Text = s.Zestaw;
    guarded([&] {
        std::array<float, Tabela::kKomorek> placa = Tabela::read(s);
        for (int i = 0; i < Tabela::kKomorek; ++i)
            txtPlaca[static_cast<std::size_t>(i)]->Text = core::Format(placa[static_cast<std::size_t>(i)], "0.00");
    });
}

bool TaryfikatorScreen::komorki(std::array<float, Tabela::kKomorek>& placa) {
    for (int i = 0; i < Tabela::kKomorek; ++i) {
        core::Control& c = *txtPlaca[static_cast<std::size_t>(i)];
        std::string t = core::Trim(core::KropkaZamiastPrzecinka(std::string(c.Text)));
        try {
            placa[static_cast<std::size_t>(i)] = t.empty() ? 0.0f : static_cast<float>(core::toDouble(t, c.Name));
        } catch (const core::Error&) {
            ui.msgBox("W polu " + c.Name + " wpisz kwotę (cyfry i kropka lub przecinek).", Buttons::OK, Icon::Exclamation,
                      "Taryfikator");
            SetFocus(c);
            return false;
        }
    }
    return true;
}

void TaryfikatorScreen::CmdZapisz_Click() {
    std::array<float, Tabela::kKomorek> placa{};
    if (!komorki(placa)) return;
    guarded([&] { Tabela::write(s, placa); });
}

void TaryfikatorScreen::cmdWymienZasadnicza_Click() {
    std::array<float, Tabela::kKomorek> placa{};
    if (!komorki(placa)) return;
    guarded([&] { wymienZasadnicza(s, ui, placa); });
}

}  // namespace payinputs
