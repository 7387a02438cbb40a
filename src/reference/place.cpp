#include "reference/place.h"

#include <ctime>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "reference/payers.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;
using core::Icon;
using core::Kind;

namespace reference {

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
                                         "start",   "rp7",       "Kadry"};

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
    cmdPotwierdz_.at(3, 1);
    MonthView1.at(4, 0, 2);
    MonthView1.Visible = false;
    drvStacjaDyskow.at(5, 0).label("Dysk:");
    dirFolder.at(6, 0, 2).label("Folder danych:");
    cmdAkceptuj_.at(7, 1);
    lbData.at(8, 0);
    lbGodzina.at(8, 1);
    Label4.at(9, 0);
    cmdKoniec_.at(9, 1);
    tmCzas.Interval = 1000;

    cmdPotwierdz_.Click = [this] { cmdPotwierdz(); };
    txtDataListyS.KeyEnter = [this] { cmdPotwierdz(); };
    txtDataListyS.Click = [this] { MonthView1.Visible = true; };
    MonthView1.Click = [this] { MonthView1_DateClick(); };
    cmdAkceptuj_.Click = [this] { cmdAkceptuj(); };
    dirFolder.Change = [this] {};
    drvStacjaDyskow.Click = [this] { dirFolder.Text = drvStacjaDyskow.selectedText(); };
    cmdKoniec_.Click = [this] { cmdKoniec(); };
    tmCzas.Tick = [this] { tmCzas_Timer(); };
}

void PlaceScreen::addMenu(const std::string& name, const std::string& caption, const std::string& parent) {
    auto c = std::make_unique<core::Control>(this, name, Kind::Menu, caption);
    c->Parent = parent;
    core::Control* raw = c.get();
    if (!parent.empty()) {
        if (name == "Has_o")
            raw->Click = [this] { Has_o(); };
        else if (name == "Sciezka")
            raw->Click = [this] { Sciezka(); };
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
        if (m->Name == "Has_o" || m->Name == "Sciezka") {
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
    loadRates(s);
    lbAdministrator.Caption = administrator(s.Dane);
}

void PlaceScreen::refreshPayer() {
    if (s.Firma.valid()) lbPlatnik.Caption = s.Firma.s(Firma::SkrotPlatnika);
    txtZestaw.Text = s.Zestaw;
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
        guarded([&] {
            selectPayer(s);
            readRates();
        });
        // 9.
        cmdAkceptuj_.Visible = false;
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
    lock_ = std::make_unique<core::InstanceLock>(s.WorkDir);
    if (lock_->otherRunning()) {
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

void PlaceScreen::cmdPotwierdz() {
    std::string t = core::Trim(txtDataListyS.Text);
    auto part = [&](std::size_t start) {
        std::string p = core::Mid(t, start, 2);
        return core::isNumeric(p) ? core::Val(p) : -1.0;
    };
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
    cmdPotwierdz();
}

void PlaceScreen::Sciezka() {
    drvStacjaDyskow.Visible = dirFolder.Visible = cmdAkceptuj_.Visible = true;
    dirFolder.Text = s.katalog().string();
}

void PlaceScreen::cmdAkceptuj() {
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
        drvStacjaDyskow.Visible = dirFolder.Visible = cmdAkceptuj_.Visible = false;
        setOkres();
        selectPayer(s);
        readRates();
        refreshPayer();
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

void PlaceScreen::cmdKoniec() { Unload(); }

void PlaceScreen::tmCzas_Timer() {
    std::time_t t = std::time(nullptr);
    std::tm tm{};
    localtime_r(&t, &tm);
    char buf[16];
    std::snprintf(buf, sizeof buf, "%02d:%02d:%02d", tm.tm_hour, tm.tm_min, tm.tm_sec);
    lbGodzina.Caption = buf;
}

}  // namespace reference
