#include "app/place.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "reference/mojafirma.h"
#include "reference/payers.h"
#include "app/pomoc.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;
using core::Icon;
using core::Kind;

namespace app {

const char* const kVersion = "1.0.0";

namespace {

struct MenuEntry {
    const char* name;
    const char* caption;
    const char* parent;  // "" for a drop-down of the menu bar
};

// The main menu: the drop-downs of the bar and the entries under them.
const MenuEntry kMenu[] = {
    {"mnuListy", "&Listy płac", ""},
    {"wybór", "&Wybór grupy", "mnuListy"},
    {"mnuZbiorowki", "&Zbiorówki", ""},
    {"mnuWybórList", "&Wybór zestawu do przetwarzania  ", "mnuZbiorowki"},
    {"mnuDoZUS", "Przeniesienie do Płatnika Z&US z zestawów ", "mnuZbiorowki"},
    {"mnuPZU", "&PZU", "mnuZbiorowki"},
    {"mnuKZPr", "&KZP rata i składki", "mnuZbiorowki"},
    {"mnuZFM", "Z&FM rata", "mnuZbiorowki"},
    {"mnuZwiazki", "&Związki zawodowe", "mnuZbiorowki"},
    {"mnuSolidarnosc", "Solidarność", "mnuZbiorowki"},
    {"mnuPodatki", "P&Odatki", "mnuZbiorowki"},
    {"mnuPotraceniaInne", "&Potrącenia Inne", "mnuZbiorowki"},
    {"ZbiorkaL", "Zbio&rówka z list płac zestawu", "mnuZbiorowki"},
    {"mnuBanki", "Do &Banków", "mnuZbiorowki"},
    {"mnuSkladkiZUS", "&Składki ZUS", "mnuZbiorowki"},
    {"mnuPit4", "Pit4-(ver.17)", "mnuZbiorowki"},
    {"Pit4Roczny", "&Dane do Pit4R", "mnuZbiorowki"},
    {"mnuInstalacyjne", "&Instalacyjne", ""},
    {"Platnik", "&Dane Płatnika", "mnuInstalacyjne"},
    {"instalacjalist", "&Instalacja list płac", "mnuInstalacyjne"},
    {"stawki", "&Stawki", "mnuInstalacyjne"},
    {"Taryfikator", "&Taryfikator płac", "mnuInstalacyjne"},
    {"start", "Instalacja &kontrolek", "mnuInstalacyjne"},
    {"obsluga", "&Administrator", "mnuInstalacyjne"},
    {"mnuDruki", "&Druki", ""},
    {"zarobki", "Zaświadczenie o zarobkach", "mnuDruki"},
    {"rp7", "Zaświadczenie RP7", "mnuDruki"},
    {"Kadry", "&Kadrowe", "mnuDruki"},
    {"mnuDelegacje", "&Delegacje", "mnuDruki"},
    {"mnuNarzedzia", "&Narzędzia", ""},
    {"Data", "&Data", "mnuNarzedzia"},
    {"Czas", "&Czas", "mnuNarzedzia"},
    {"Sciezka", "&Ścieżka do programu", "mnuNarzedzia"},
    {"Has_o", "&Zmiana Hasła", "mnuNarzedzia"},
    {"Drukarki", "&Ustawienie Drukarki", "mnuNarzedzia"},
    {"Kopia", "&Wykonanie kopii programu w innej lokalizacji", "mnuNarzedzia"},
    {"calc", "Ka&Lkulator", "mnuNarzedzia"},
    {"mnuNotatnik", "&Notatnik", "mnuNarzedzia"},
    {"mnuPomoc", "&Pomoc", ""},
    {"pomoc", "&Pomoc", "mnuPomoc"},
};

// Entries whose screens this program does not have.
const char* const kNotInThisVersion[] = {"mnuPZU",  "mnuKZPr",   "mnuZFM",     "mnuZwiazki", "mnuSolidarnosc",
                                         "mnuPodatki", "mnuPotraceniaInne", "ZbiorkaL", "Pit4Roczny",
                                         "start",   "rp7"};

bool notInThisVersion(const std::string& name) {
    for (const char* n : kNotInThisVersion)
        if (name == n) return true;
    return false;
}

}  // namespace

PlaceScreen::PlaceScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmPlace", "pensja"), s(session) {
    for (const MenuEntry& m : kMenu) addMenu(m.name, m.caption, m.parent);

    lbPlatnik.at(0, 0, 2).label("Płatnik:");
    lbAdministrator.at(1, 0, 2).label("Administrator:");
    txtZestaw.at(2, 0).label("Zestaw list:");
    txtZestaw.Locked = true;
    txtZestaw.width(6);
    txtDataListyS.at(3, 0).label("Data listy płac:").width(12);
    txtDataListyS.ToolTipText = "Data listy płac w postaci dd-mm-rrrr";
    cmdPotwierdz.at(3, 1);
    MonthView1.at(4, 0, 2);
    MonthView1.Visible = false;
    drvStacjaDyskow.at(5, 0).label("Dysk:");
    dirFolder.at(6, 0, 2).label("Folder danych:");
    cmdAkceptuj.at(7, 1);
    lbData.at(8, 0);
    lbGodzina.at(8, 1);
    Label4.at(9, 0);
    cmdKoniec.at(9, 1);
    tmCzas.Interval = 1000;
    lbKopia.at(10, 0, 2);
    prbKopia.at(11, 0, 2);
    lbKopia.Visible = prbKopia.Visible = false;

    cmdPotwierdz.Click = [this] { cmdPotwierdz_Click(); };
    // Enter takes the calendar's date, and the calendar follows a real date typed in the box,
    // so what the clerk sees is what Enter confirms.
    txtDataListyS.KeyEnter = [this] { MonthView1_DateClick(); };
    txtDataListyS.Change = [this] {
        core::Date d;
        if (core::Len(core::Trim(txtDataListyS.Text)) == 10 && core::parseDate(core::Trim(txtDataListyS.Text), d))
            MonthView1.Text = core::FormatDate(d, "dd-mm-yyyy");
    };
    txtDataListyS.Click = [this] { MonthView1.Visible = true; };
    MonthView1.Click = [this] { MonthView1_DateClick(); };
    cmdAkceptuj.Click = [this] { cmdAkceptuj_Click(); };
    dirFolder.Change = [this] {};
    drvStacjaDyskow.Click = [this] { dirFolder.Text = drvStacjaDyskow.selectedText(); };
    cmdKoniec.Click = [this] { cmdKoniec_Click(); };
    tmCzas.Tick = [this] { tmCzas_Timer(); };
}

namespace {

// The entries that run a utility of the main window itself.
struct Utility {
    const char* name;
    void (PlaceScreen::*run)();
};
const Utility kUtilities[] = {
    {"Has_o", &PlaceScreen::Has_o},          {"Sciezka", &PlaceScreen::Sciezka}, {"mnuWybórList", &PlaceScreen::mnuWyborList},
    {"Drukarki", &PlaceScreen::Drukarki},    {"Kopia", &PlaceScreen::Kopia},     {"calc", &PlaceScreen::calc},
    {"mnuNotatnik", &PlaceScreen::mnuNotatnik}, {"Data", &PlaceScreen::Data},    {"Czas", &PlaceScreen::Czas},
    {"pomoc", &PlaceScreen::pomoc},
};

const Utility* utility(const std::string& name) {
    for (const Utility& u : kUtilities)
        if (name == u.name) return &u;
    return nullptr;
}

}  // namespace

void PlaceScreen::addMenu(const std::string& name, const std::string& caption, const std::string& parent) {
    auto c = std::make_unique<core::Control>(this, name, Kind::Menu, caption);
    c->Parent = parent;
    core::Control* raw = c.get();
    if (!parent.empty()) {
        if (const Utility* u = utility(name))
            raw->Click = [this, u] { (this->*(u->run))(); };
        else
            raw->Click = [this, name] {
                this->ui.open(name, s);
                refreshPayer();
            };
    }
    menu.push_back(std::move(c));
}

void PlaceScreen::refreshMenu() {
    for (auto& m : menu) {
        if (m->Parent.empty()) continue;
        if (utility(m->Name)) {
            m->Enabled = true;
        } else if (notInThisVersion(m->Name)) {
            m->Enabled = false;
            m->ToolTipText = "Ta funkcja nie jest częścią tej wersji programu.";
        } else {
            m->Enabled = ui.canOpen(m->Name);
            m->ToolTipText = m->Enabled ? "" : "Ten ekran nie jest jeszcze dostępny w tej wersji programu.";
        }
    }
}

void PlaceScreen::readInstalka(const fs::path& folder) { s.takeInstalka(core::Instalka::read(folder)); }

void PlaceScreen::setOkres() { s.OkresListy = core::Mid(s.DataListy, 4, 2) + core::Right(s.DataListy, 2); }

void PlaceScreen::setCaption() { Caption = s.Katalog + "  pensja - płace i kadry, wersja " + kVersion; }

void PlaceScreen::readRates() {
    reference::loadRates(s);
    lbAdministrator.Caption = reference::administrator(s.Dane);
}

void PlaceScreen::refreshPayer() {
    if (s.Firma.valid()) lbPlatnik.Caption = s.Firma.s(reference::Firma::SkrotPlatnika);
    txtZestaw.Text = s.Zestaw;
    if (s.Dane.valid()) lbAdministrator.Caption = reference::administrator(s.Dane);
    if (!s.Katalog.empty()) setCaption();
}

void PlaceScreen::wybierzPlatnika() {
    reference::MojaFirmaScreen hidden(ui, s);
    hidden.Visible = false;
    hidden.Load();
    if (hidden.Biezacy >= 0)
        hidden.cmdKoniecM_Click();
    else
        readRates();
    refreshPayer();
}

void PlaceScreen::Load() {
    refreshMenu();
    // 1.
    s.Nieaktywny = "   ";
    // 2. The copy in the working folder points to the data folder.
    bool haveLocal = core::fileExists(core::resolvePath(s.WorkDir, {"instalka.dat"}));
    bool broken = false;
    if (haveLocal) {
        broken = true;
        guarded([&] {
            readInstalka(s.WorkDir);
            broken = false;
        });
    }
    txtZestaw.Text = s.Zestaw;
    // 3.
    bool noFolder = s.Katalog.empty();
    drvStacjaDyskow.Visible = dirFolder.Visible = noFolder;
    drvStacjaDyskow.List = {"/", std::string(getenv("HOME") ? getenv("HOME") : "/")};
    dirFolder.Text = noFolder ? fs::absolute(s.WorkDir).lexically_normal().string() : s.katalog().string();
    if (!noFolder) {
        // 4. The copy in the data folder rules.
        guarded([&] { readInstalka(s.katalog()); });
        // 5., 6.
        guarded([&] { readRates(); });
    }
    // 7.
    if (s.DataListy.empty())
        ui.msgBox("Brak wprowadzonej daty listy !", Buttons::OK, Icon::Exclamation, "Brak wprowadzonej daty jest błędem !");
    txtDataListyS.Text = s.DataListy;
    setOkres();
    if (!noFolder) {
        // 8., 11. The payer, then the rates again with its own accident rate.
        guarded([&] { wybierzPlatnika(); });
        // 9.
        cmdAkceptuj.Visible = false;
    }
    // 10. No data folder yet: the folder shown is taken and the installation record made there.
    // A damaged record is left as it is for the operator to mend.
    if (noFolder && !broken) {
        s.Katalog = dirFolder.Text;
        guarded([&] { core::Instalka::write(s.katalog(), s.instalkaRecord()); });
    }
    refreshPayer();
    // 12.
    setCaption();
    lbData.Caption = core::FormatDate(core::today(), "dddd,dd,mmmm,yyyy");
    tmCzas_Timer();
}

void PlaceScreen::Activate() {
    // 1.
    s.Katalog = dirFolder.Text;
    // 2.
    auto typed = ui.inputBox("Podaj hasło dostępu do danych kadrowo- płacowych ", " Wprowadź hasło dostępu ");
    s.HasloPodane = typed.value_or("");
    // 3.
    lock = std::make_unique<core::InstanceLock>(s.WorkDir);
    if (lock->otherRunning()) {
        ui.msgBox("Aplikacja Tesmar jest aktywna - próba ponownego zainstalowania tego programu !", Buttons::OK,
                  Icon::Critical);
        Unload();
        return;
    }
    // 4.
    Label4.Caption = std::string("Versja ") + kVersion;
    // 5.
    guarded([&] { readInstalka(s.katalog()); });
    if (s.Haslo != s.HasloPodane) {
        ui.msgBox("Brak dostępu niestety nie rozpoznaje Cię !", Buttons::OK, Icon::Critical, "Błąd wprowadzenia hasła");
        Unload();
        return;
    }
    ui.msgBox("Ok masz dostęp!", Buttons::OK, Icon::Information, "Dzień dobry witaj w Płacach");
    // 6.
    MonthView1.Text = core::FormatDate(core::today(), "dd-mm-yyyy");
}

void PlaceScreen::cmdPotwierdz_Click() {
    std::string t = core::Trim(txtDataListyS.Text);
    // Day and month by the value of their two characters: "3-" is 3.
    auto part = [&](std::size_t start) { return core::Val(core::Mid(t, start, 2)); };
    bool ok = core::Len(t) == 10;
    if (ok) {
        double d = part(1), m = part(4);
        ok = d >= 1 && d <= 31 && m >= 1 && m <= 12;
    }
    if (!ok) {
        ui.msgBox(" Źle wpisana data listy - popraw wg. wzoru :dd-mm-rrrr ", Buttons::OK, Icon::Exclamation);
        SetFocus(txtDataListyS);
        return;
    }
    guarded([&] {
        core::Record r = core::Instalka::read(s.katalog());
        r.set(core::Instalka::DataListy, t);
        core::Instalka::write(s.katalog(), r);
        s.takeInstalka(r);
        setOkres();
        txtDataListyS.Text = t;
        // The rates follow the year of the new date.
        readRates();
    });
}

void PlaceScreen::MonthView1_DateClick() {
    txtDataListyS.Text = core::DataTekst(MonthView1.Text);
    MonthView1.Visible = false;
    cmdPotwierdz_Click();
}

void PlaceScreen::Sciezka() {
    drvStacjaDyskow.Visible = dirFolder.Visible = cmdAkceptuj.Visible = true;
    dirFolder.Text = s.katalog().string();
}

void PlaceScreen::cmdAkceptuj_Click() {
    guarded([&] {
        fs::path folder = dirFolder.Text;
        core::Record r = core::Instalka::read(folder);
        s.takeInstalka(r);
        txtZestaw.Text = s.Zestaw;
        s.Katalog = folder.string();
        r.set(core::Instalka::Katalog, s.Katalog);
        core::Instalka::write(folder, r);
        setCaption();
        readRates();
        drvStacjaDyskow.Visible = dirFolder.Visible = cmdAkceptuj.Visible = false;
        setOkres();
        wybierzPlatnika();
    });
}

void PlaceScreen::Has_o() {
    for (int attempt = 0; attempt < 3; ++attempt) {
        auto old = ui.inputBox("Podaj Dotychczasowe HASŁO dostępu do programu! ", "Zmiana Hasła dostepu !!");
        if (old.value_or("") == s.Haslo && old) {
            auto fresh = ui.inputBox("Podaj Nowe hasło dostępu do programu i Zapamiętaj (zapisz)!", "Nowe Hasło dostepu !!");
            if (!fresh) return;
            guarded([&] {
                core::Record r = core::Instalka::read(s.katalog());
                r.set(core::Instalka::Haslo, *fresh);
                core::Instalka::write(s.katalog(), r, "tym.dta");
                s.Haslo = s.HasloPodane = *fresh;
                ui.msgBox("Zmienione hasło to : " + *fresh, Buttons::OK, Icon::Information, " Zapamietaj  - lepiej zapisz!! ");
            });
            return;
        }
        Answer a = ui.msgBox("Przykro mi nie masz uprawnień do zmiany hasła", Buttons::AbortRetryIgnore, Icon::Critical,
                             " Tylko dla uprawnionego administratora ");
        if (a != Answer::Retry) return;
    }
}

void PlaceScreen::cmdKoniec_Click() { Unload(); }

void PlaceScreen::tmCzas_Timer() {
    std::time_t t = std::time(nullptr);
    std::tm tm{};
    localtime_r(&t, &tm);
    char buf[16];
    std::snprintf(buf, sizeof buf, "%02d:%02d:%02d", tm.tm_hour, tm.tm_min, tm.tm_sec);
    lbGodzina.Caption = buf;
}

void PlaceScreen::mnuWyborList() {
    Answer a = ui.msgBox("Aktualny zestaw zbiorów do przetwarzania! -> " + s.Zestaw + " <- Czy dokonać zmian ?",
                         Buttons::YesNo, Icon::Question, "Zmiana zestawu list do zbiorówek");
    if (a != Answer::Yes) return;
    auto typed = ui.inputBox(" Wprowadź symbol zestawu do przetwarzania np.(A) lub (B) ", "Zmiana zestawu list do zbiorówek",
                             s.Zestaw);
    if (!typed) return;
    // The set letters of the catalogue are kept in upper case, and so are these.
    std::string zestaw = core::UCase(core::Trim(*typed));
    if (zestaw.empty()) return;
    if (zestaw.find('"') != std::string::npos) {
        ui.msgBox("Symbol zestawu nie może zawierać cudzysłowu. Zestawu nie zmieniono.", Buttons::OK, Icon::Exclamation,
                  "Zmiana zestawu list do zbiorówek");
        return;
    }
    guarded([&] {
        core::Record r = core::Instalka::read(s.katalog());
        r.set(core::Instalka::Zestaw, zestaw);
        core::Instalka::write(s.katalog(), r, "tym.dta");
        s.Zestaw = zestaw;
        txtZestaw.Text = zestaw;
    });
}

namespace {

std::string nazwaDrukarki(const std::string& kind) {
    std::string k = core::UCase(core::Trim(kind));
    if (k == "I") return "Igłowa";
    if (k == "A") return "Atramentowa";
    if (k == "L") return "Laserowa";
    return "nieustalona";
}

}  // namespace

void PlaceScreen::Drukarki() {
    guarded([&] {
        core::Record r = core::Instalka::read(s.katalog());
        std::string name = nazwaDrukarki(r.s(core::Instalka::Drukarka));
        ui.msgBox(name, Buttons::OK, Icon::Information, "Zmiana przyłaczonej drukarki");
        auto typed = ui.inputBox("Podaj rodzaj przyłączonej drukarki        A=atramentowa,I=igłowa,L=laserowa",
                                 " Aktualnie przyłączona = " + name, r.s(core::Instalka::Drukarka));
        if (!typed) return;
        std::string kind = core::UCase(core::Trim(*typed));
        if (kind != "A" && kind != "I" && kind != "L") {
            ui.msgBox("Nieznany rodzaj drukarki \"" + *typed + "\" - wpisz A, I lub L. Ustawienia nie zmieniono.",
                      Buttons::OK, Icon::Exclamation, "Zmiana przyłaczonej drukarki");
            return;
        }
        r.set(core::Instalka::Drukarka, kind);
        core::Instalka::write(s.katalog(), r, "tym.dta");
        s.Drukarka = kind;
    });
}

void PlaceScreen::Kopia() {
    const std::string title = "Wykonanie całkowitej kopii programu wraz z danymi";
    auto typed = ui.inputBox("Podaj gdzie wykonać archiwizacje np. d:\\Tesmar", title);
    std::string where = core::Trim(typed.value_or(""));
    if (where.empty()) {
        ui.msgBox("Nie ustalono folderu docelowego !", Buttons::OK, Icon::Exclamation, title);
        return;
    }
    std::error_code ec;
    fs::path source = fs::weakly_canonical(fs::absolute(s.katalog()), ec);
    fs::path typedPath(where);
    fs::path target = fs::weakly_canonical(typedPath.is_relative() ? fs::absolute(s.WorkDir) / typedPath : typedPath, ec);
    // The copy must not land inside what it copies.
    auto [endSrc, endTgt] = std::mismatch(source.begin(), source.end(), target.begin(), target.end());
    if (endSrc == source.end()) {
        ui.msgBox("Folder docelowy " + target.string() + " leży wewnątrz folderu danych " + source.string() +
                      " - kopia nie może powstać w kopiowanym folderze. Podaj folder poza nim, np. na innym dysku.",
                  Buttons::OK, Icon::Exclamation, title);
        return;
    }
    if (fs::exists(target, ec) && !fs::is_directory(target, ec)) {
        ui.msgBox("Pod nazwą " + target.string() + " jest plik, a nie folder. Podaj inny folder docelowy.", Buttons::OK,
                  Icon::Exclamation, title);
        return;
    }
    if (fs::is_directory(target, ec) && !fs::is_empty(target, ec)) {
        if (ui.msgBox("Folder " + target.string() +
                          " nie jest pusty. Pliki o tych samych nazwach zostaną zastąpione kopią. Czy kontynuować?",
                      Buttons::YesNo, Icon::Question, title) != Answer::Yes)
            return;
    }
    guarded([&] {
        // What is to be copied, counted first for the progress bar.
        std::vector<fs::directory_entry> entries;
        for (auto it = fs::recursive_directory_iterator(source); it != fs::recursive_directory_iterator(); ++it)
            entries.push_back(*it);
        int files = 0;
        for (const auto& e : entries)
            if (e.is_regular_file()) ++files;
        lbKopia.Caption = " Prosze czekać wykonuję kopie całkowitą Tesmar do wybranego folderu ";
        lbKopia.Visible = prbKopia.Visible = true;
        prbKopia.Min = 0;
        prbKopia.Max = std::max(files, 1);
        prbKopia.Value = 0;
        DoEvents();
        struct Hide {
            PlaceScreen* p;
            ~Hide() { p->lbKopia.Visible = p->prbKopia.Visible = false; }
        } hide{this};
        try {
            fs::create_directories(target);
            for (const auto& e : entries) {
                fs::path to = target / fs::relative(e.path(), source);
                if (e.is_directory()) {
                    fs::create_directories(to);
                } else if (e.is_regular_file()) {
                    fs::copy_file(e.path(), to, fs::copy_options::overwrite_existing);
                    ++prbKopia.Value;
                    DoEvents();
                }
            }
        } catch (const fs::filesystem_error& e) {
            throw core::Error(core::err::PathFileAccess, e.path1().string(),
                              "kopia przerwana: " + std::string(e.code().message()));
        }
        ui.msgBox("Kopia całkowita Tesmar została wykonana w katalogu " + target.string(), Buttons::OK,
                  Icon::Information, title);
    });
}

void PlaceScreen::uruchom(const std::vector<std::string>& programs, const std::vector<std::string>& args,
                          const std::string& title, const std::string& what) {
    std::string program = pulpit.find(programs);
    if (program.empty()) {
        std::string list;
        for (const auto& p : programs) list += (list.empty() ? "" : ", ") + p;
        ui.msgBox("Nie znaleziono w systemie programu: " + what + " (szukano: " + list +
                      "). Poproś administratora o zainstalowanie jednego z nich.",
                  Buttons::OK, Icon::Exclamation, title);
        return;
    }
    std::vector<std::string> argv{program};
    argv.insert(argv.end(), args.begin(), args.end());
    if (!pulpit.start(argv))
        ui.msgBox("Nie udało się uruchomić programu " + program + ".", Buttons::OK, Icon::Exclamation, title);
}

void PlaceScreen::calc() { uruchom(kKalkulatory, {}, "Kalkulator", "kalkulator"); }

void PlaceScreen::mnuNotatnik() {
    guarded([&] {
        // The notes of the operator are kept in the data folder.
        fs::path notes = core::resolvePath(s.katalog(), {"notatki.txt"});
        if (!core::fileExists(notes)) core::commitFile(notes, std::string());
        std::vector<std::string> programs = kEdytory;
        programs.push_back("xdg-open");
        uruchom(programs, {notes.string()}, "Notatnik", "edytor tekstu");
    });
}

namespace {

const char* const kTytulDaty = "Zmiana daty systemowej";
const char* const kTytulCzasu = "Zmiana czasu systemowego";

std::string brakUprawnien(int err, const std::string& what, const std::string& how) {
    if (err == EPERM || err == EACCES)
        return "System nie pozwala programowi zmienić " + what +
               " (brak uprawnień administratora). Ustawia je administrator systemu, np. poleceniem: " + how;
    return "Nie udało się zmienić " + what + ": " + std::strerror(err);
}

}  // namespace

void PlaceScreen::Data() {
    auto typed = ui.inputBox("Podaj nową datę systemową w postaci dd-mm-rrrr", kTytulDaty,
                             core::FormatDate(core::today(), "dd-mm-yyyy"));
    if (!typed || core::Trim(*typed).empty()) return;
    std::string t = core::Trim(*typed);
    core::Date d;
    if (core::Len(t) != 10 || !core::parseDate(t, d)) {
        ui.msgBox("Niepoprawna data \"" + t + "\" - wpisz ją w postaci dd-mm-rrrr, np. 31-01-2021. Daty nie zmieniono.",
                  Buttons::OK, Icon::Exclamation, kTytulDaty);
        return;
    }
    std::time_t now = std::time(nullptr);
    std::tm tm{};
    localtime_r(&now, &tm);
    int err = pulpit.setClock(d, tm.tm_hour, tm.tm_min, tm.tm_sec);
    if (err != 0) {
        ui.msgBox(brakUprawnien(err, "daty systemowej",
                                "sudo timedatectl set-time " + core::FormatDate(d, "yyyy-mm-dd")),
                  Buttons::OK, Icon::Exclamation, kTytulDaty);
        return;
    }
    lbData.Caption = core::FormatDate(d, "dddd,dd,mmmm,yyyy");
    ui.msgBox("Data systemowa: " + core::FormatDate(d, "dd-mm-yyyy"), Buttons::OK, Icon::Information, kTytulDaty);
}

void PlaceScreen::Czas() {
    std::time_t now = std::time(nullptr);
    std::tm tm{};
    localtime_r(&now, &tm);
    char buf[16];
    std::snprintf(buf, sizeof buf, "%02d:%02d:%02d", tm.tm_hour, tm.tm_min, tm.tm_sec);
    auto typed = ui.inputBox("Podaj nowy czas systemowy w postaci gg:mm:ss", kTytulCzasu, buf);
    if (!typed || core::Trim(*typed).empty()) return;
    std::string t = core::Trim(*typed);
    auto parts = core::Split(t, ':');
    bool ok = parts.size() == 2 || parts.size() == 3;
    int hms[3] = {0, 0, 0};
    for (std::size_t i = 0; ok && i < parts.size(); ++i) {
        const std::string& p = parts[i];
        ok = !p.empty() && p.size() <= 2 && p.find_first_not_of("0123456789") == std::string::npos;
        if (ok) hms[i] = std::stoi(p);
    }
    ok = ok && hms[0] <= 23 && hms[1] <= 59 && hms[2] <= 59;
    if (!ok) {
        ui.msgBox("Niepoprawny czas \"" + t + "\" - wpisz go w postaci gg:mm:ss, np. 14:30:00. Czasu nie zmieniono.",
                  Buttons::OK, Icon::Exclamation, kTytulCzasu);
        return;
    }
    core::Date d{tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday};
    int err = pulpit.setClock(d, hms[0], hms[1], hms[2]);
    char set[40];
    std::snprintf(set, sizeof set, "%02d:%02d:%02d", hms[0], hms[1], hms[2]);
    if (err != 0) {
        ui.msgBox(brakUprawnien(err, "czasu systemowego", std::string("sudo timedatectl set-time ") + set),
                  Buttons::OK, Icon::Exclamation, kTytulCzasu);
        return;
    }
    tmCzas_Timer();
    ui.msgBox(std::string("Czas systemowy: ") + set, Buttons::OK, Icon::Information, kTytulCzasu);
}

void PlaceScreen::pomoc() {
    PomocScreen f(ui, s);
    ui.showForm(f);
}

}  // namespace app
