#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/paths.h"
#include "gui/qtdialogs.h"
#include "gui_support.h"
#include "payinputs/pay_record.h"
#include "payinputs/potracenia.h"
#include "payinputs/zasilki.h"
#include "support/scripted.h"

using namespace payinputs;
using testing_support::ScriptedDialogs;

namespace {

// The demo list "a" with Anna Kowalska's pay record added to whatever the list holds.
struct DemoPay {
    gui_support::DemoSession demo;
    core::Session& s = demo.session;
    std::filesystem::path file;

    DemoPay() {
        s.NazwaZbioru = "a";
        file = Pay::path(s);
        std::vector<core::Record> recs;
        if (core::fileExists(file)) recs = Pay::readAll(file);
        core::Record r(Pay::schema());
        r.set(Pay::Poczatek, "<Poczatek>");
        r.set(Pay::Nazwisko, "Kowalska");
        r.set(Pay::Imie, "Anna");
        r.set(Pay::Pesel, "85020254321");
        r.set(Pay::Obywatelstwo, "POLSKIE");
        r.set(Pay::Zasadnicza, 3000.0f);
        r.set(Pay::Funkcyjny, 450.0f);
        r.set(Pay::Stazowy, 300.0f);
        r.set(Pay::ZFMPozyczka, 2400.0);
        r.set(Pay::ZFMRata, 200.0f);
        r.set(Pay::KZPWklady, 1850.0);
        r.set(Pay::KZPpozyczka, 3000.0);
        r.set(Pay::KZPRata, 250.0f);
        r.set(Pay::KZPSkladka, 0.02f);
        r.set(Pay::Zwiazek, 0.5f);
        r.set(Pay::Solidarnosc, 12.0f);
        r.set(Pay::PZU, 45.5f);
        r.set(Pay::Zasilek1, 215.84);
        r.set(Pay::Zasilek2, 95.0);
        r.set(Pay::Zasilek3, 1200.0);
        r.set(Pay::Zasilek5, 1.0);
        r.set(Pay::Zasilek6, 1.0);
        r.set(Pay::Numer, static_cast<int>(recs.size()) + 1);
        r.set(Pay::Koniec, "<Koniec>");
        recs.push_back(r);
        std::filesystem::create_directories(file.parent_path());
        core::writeAll(file, recs);
        s.KluczOsoby = "85020254321";
        s.NazwiskoOsoby = "Kowalska";
        s.ImieOsoby = "Anna";
    }

    core::Record anna() const {
        for (const core::Record& r : Pay::readAll(file))
            if (kluczOsoby(r) == "85020254321") return r;
        return {};
    }
};

QString text(QWidget& w, const char* name) {
    if (auto* l = w.findChild<QLabel*>(name)) return l->text();
    if (auto* e = w.findChild<QLineEdit*>(name)) return e->text();
    return "<brak " + QString(name) + ">";
}

}  // namespace

TEST(PotraceniaGui, ShowsTheDeductionsAndSavesTheTypedDue) {
    DemoPay demo;
    ScriptedDialogs ui;
    PotraceniaScreen screen(ui, demo.s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_EQ(dlg.windowTitle(), "Potracenia Kowalska Anna");
    EXPECT_EQ(text(dlg, "txtZFMPozyczka"), "2400");
    EXPECT_EQ(text(dlg, "txtKZPSkladka"), "0.02");
    EXPECT_EQ(text(dlg, "lbPodstawaDoKZP"), "3750.00");  // 3000 + 450 + 300
    EXPECT_EQ(text(dlg, "lbZwiazki"), "15.00");          // half a percent of 3000
    EXPECT_EQ(text(dlg, "lbSolid"), "12.00");
    // 200 + 250 + 0.02 + 45.5 + 15 + 12
    EXPECT_EQ(text(dlg, "lbRazemPotracenia"), "522.52");
    EXPECT_EQ(text(dlg, "txtZwiazek_label"), "Branżowy  K ^ %");
    EXPECT_FALSE(dlg.findChild<QLabel*>("lbBrakDanych")->isVisibleTo(&dlg));
    gui_support::grab(&dlg, "frmPotracenia");

    auto* zwiazek = dlg.findChild<QLineEdit*>("txtZwiazek");
    ASSERT_NE(zwiazek, nullptr);
    zwiazek->setText("1,5");
    dlg.findChild<QPushButton*>("cmdZapisz")->click();
    EXPECT_EQ(ui.lines(), std::vector<std::string>{"[]  Zapisano "});
    EXPECT_TRUE(screen.Unloaded);
    EXPECT_EQ(demo.anna().s(Pay::Zwiazek), "1.5");
}

TEST(ZasilkiGui, ShowsTheBenefitsAndSavesTheFamilyAllowance) {
    DemoPay demo;
    ScriptedDialogs ui;
    ZasilkiScreen screen(ui, demo.s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_EQ(dlg.windowTitle(), "Zasiłki Kowalska Anna");
    EXPECT_EQ(text(dlg, "txtPielegnacyjny"), "215.84");
    EXPECT_EQ(text(dlg, "txtZWychowawczy"), "1200");
    EXPECT_EQ(text(dlg, "lbKwotazasilkow"), "310.84");  // 215.84 + 95, without the childcare base
    EXPECT_EQ(text(dlg, "Label3"), "Pielęgnacyjny iloscOs/kwota");
    gui_support::grab(&dlg, "frmZasilki");

    dlg.findChild<QLineEdit*>("txtRodzinny")->setText("120,50");
    dlg.findChild<QPushButton*>("CmdZapiszZasilki")->click();
    EXPECT_EQ(ui.lines(), std::vector<std::string>{"[]  Zapisano "});
    EXPECT_EQ(text(dlg, "txtRodzinny"), "120.50");
    EXPECT_EQ(text(dlg, "lbKwotazasilkow"), "336.34");
    EXPECT_EQ(demo.anna().s(Pay::Zasilek2), "120.5");
}
