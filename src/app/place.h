// frmPlace: the main window. The start of a session (installation record, rates, payer, list
// date, password), the clock, the folder choice, the password change and the main menu.
#pragma once
#include <memory>
#include <string>

#include "core/form.h"
#include "core/instance.h"
#include "core/screens.h"
#include "core/session.h"
#include "app/pulpit.h"

namespace app {

extern const char* const kVersion;  // "1.0.0"

class PlaceScreen : public core::Form {
public:
    PlaceScreen(core::Dialogs& ui, core::Session& s);

    // The start, steps 1 to 12.
    void Load() override;
    // The guard of the first showing: password, single instance, version, today in the calendar.
    void Activate();

    void cmdPotwierdz_Click();
    void cmdAkceptuj_Click();
    void cmdKoniec_Click();
    void Has_o();
    void Sciezka();
    // The utilities of the menu.
    void mnuWyborList();
    void Drukarki();
    void Kopia();
    void calc();
    void mnuNotatnik();
    void Data();
    void Czas();
    void pomoc();
    // A date picked in the calendar or Enter in txtDataListyS.
    void MonthView1_DateClick();
    void tmCzas_Timer();

    // Enables the entries of the main menu that lead somewhere.
    void refreshMenu();

    core::Session& s;

    // Session controls.
    core::Control Label4{this, "Label4", core::Kind::Label};
    core::Control lbPlatnik{this, "lbPlatnik", core::Kind::Label};
    core::Control lbAdministrator{this, "lbAdministrator", core::Kind::Label};
    core::Control lbData{this, "lbData", core::Kind::Label};
    core::Control lbGodzina{this, "lbGodzina", core::Kind::Label};
    core::Control txtZestaw{this, "txtZestaw", core::Kind::TextBox};
    core::Control txtDataListyS{this, "txtDataListyS", core::Kind::TextBox};
    core::Control cmdPotwierdz{this, "cmdPotwierdz", core::Kind::CommandButton, "&Akceptacja Daty"};
    core::Control MonthView1{this, "MonthView1", core::Kind::MonthView};
    core::Control drvStacjaDyskow{this, "drvStacjaDyskow", core::Kind::ComboBox};
    core::Control dirFolder{this, "dirFolder", core::Kind::FolderTree};
    core::Control cmdAkceptuj{this, "cmdAkceptuj", core::Kind::CommandButton, "Akceptuj folder"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "W&yjscie z programu"};
    core::Control tmCzas{this, "tmCzas", core::Kind::Timer};
    // The progress of a backup.
    core::Control lbKopia{this, "lbKopia", core::Kind::Label};
    core::Control prbKopia{this, "prbKopia", core::Kind::ProgressBar};

    // The desktop: other programs and the system clock.
    Pulpit pulpit = Pulpit::system();

    // The menu: drop-downs and their entries.
    std::vector<std::unique_ptr<core::Control>> menu;

private:
    void addMenu(const std::string& name, const std::string& caption, const std::string& parent);
    void readInstalka(const std::filesystem::path& folder);
    void readRates();
    void refreshPayer();
    // The payer chosen as the payer screen, loaded hidden, chooses it.
    void wybierzPlatnika();
    void uruchom(const std::vector<std::string>& programs, const std::vector<std::string>& args,
                 const std::string& title, const std::string& what);
    void setCaption();
    void setOkres();
    std::unique_ptr<core::InstanceLock> lock;
};

}  // namespace app
