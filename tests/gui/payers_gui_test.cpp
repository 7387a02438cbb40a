// The screens of payers and pay lists on the demo data, driven through their widgets.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include "core/screens.h"
#include "gui/qtdialogs.h"
#include "gui_support.h"
#include "reference/catalogue.h"
#include "reference/instalacja.h"
#include "reference/mojafirma.h"
#include "reference/payers.h"
#include "app/pomoc.h"
#include "reference/wybor.h"
#include "support/scripted.h"

namespace fs = std::filesystem;
using testing_support::ScriptedDialogs;

TEST(PayersGui, MojaFirmaShowsThePayerAndSavesWhatIsTyped) {
    gui_support::DemoSession demo;
    ScriptedDialogs ui;
    reference::MojaFirmaScreen screen(ui, demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_EQ(dlg.windowTitle(), "Nazwa własnej Firmy");
    auto* nazwa = dlg.findChild<QLineEdit*>("txtNazwaM");
    ASSERT_NE(nazwa, nullptr);
    EXPECT_EQ(nazwa->text(), "Przedsiębiorstwo Usługowe Demo, Spółka z o.o.");
    EXPECT_TRUE(dlg.findChild<QLineEdit*>("txtSkrótM")->isReadOnly());
    EXPECT_EQ(dlg.findChild<QLabel*>("lbPozycja")->text(), "Płatnik 1 z 1  (bieżący Płatnik programu)");
    EXPECT_FALSE(dlg.findChild<QPushButton*>("cmdNext")->isEnabled());
    EXPECT_EQ(dlg.findChild<QPushButton*>("cmdKoniecM")->text(), "W&ybierz");
    gui_support::grab(&dlg, "frmMojaFirma");

    dlg.findChild<QLineEdit*>("txtTelM")->setText("12 272 99 00");
    dlg.findChild<QPushButton*>("cmdZmianyM")->click();
    EXPECT_TRUE(ui.boxes.empty());
    EXPECT_EQ(reference::readPayers(demo.session)[0].s(reference::Firma::TelM), "12 272 99 00");
}

TEST(PayersGui, InstalacjaAddsAList) {
    gui_support::DemoSession demo;
    ScriptedDialogs ui;
    reference::InstalacjaScreen screen(ui, demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    auto* list = dlg.findChild<QListWidget*>("lstListaI");
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->count(), 2);
    list->setCurrentRow(0);
    EXPECT_EQ(dlg.findChild<QLineEdit*>("txtNazwaListy1")->text(), "Administracja");
    gui_support::grab(&dlg, "frmInstalacja");

    dlg.findChild<QPushButton*>("cmdDodajliste")->click();
    EXPECT_TRUE(dlg.findChild<QPushButton*>("cmdZapisz")->isEnabled());
    dlg.findChild<QLineEdit*>("txtNazwaListy1")->setText("Umowy zlecenia");
    dlg.findChild<QLineEdit*>("txtSkrotlisty1")->setText("u");
    dlg.findChild<QLineEdit*>("txtGrupa1")->setText("u");
    dlg.findChild<QLineEdit*>("txtZestaw")->setText("a");
    dlg.findChild<QPushButton*>("cmdZapisz")->click();
    EXPECT_EQ(ui.last(), "[Dodaje nową liste do systemu !] Czy chcesz zapisac nowe dane ?");
    EXPECT_EQ(list->count(), 3);
    EXPECT_EQ(list->item(2)->text(), "Umowy zlecenia                    u         u   A");
    EXPECT_EQ(reference::Instal::read(demo.session).size(), 3u);
}

TEST(PayersGui, WyborOpensTheChosenList) {
    gui_support::DemoSession demo;
    ScriptedDialogs ui;
    core::Screens screens;
    int opened = 0;
    screens.add("frmlista", [&](core::Session&, core::Dialogs&) { ++opened; });
    ui.screens = &screens;
    reference::WyborScreen screen(ui, demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    auto* combo = dlg.findChild<QComboBox*>("CmbWybierz");
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->currentIndex(), -1);
    EXPECT_EQ(combo->placeholderText(), "Wybierz jedną z list ");
    gui_support::grab(&dlg, "frmwybor");

    dlg.findChild<QPushButton*>("CmdWybierz")->click();
    EXPECT_EQ(ui.last(), "[Wybierz liste!] Nie wybrana lista pracowników !!");
    EXPECT_EQ(opened, 0);
    combo->setCurrentIndex(0);
    dlg.findChild<QPushButton*>("CmdWybierz")->click();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(demo.session.NazwaZbioru, "a");
    EXPECT_TRUE(screen.Unloaded);
}

TEST(PayersGui, HelpWindowShowsTheGuide) {
    gui_support::DemoSession demo;
    ScriptedDialogs ui;
    app::PomocScreen screen(ui, demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    auto* text = dlg.findChild<QPlainTextEdit*>("txtPomoc");
    ASSERT_NE(text, nullptr);
    EXPECT_TRUE(text->isReadOnly());
    EXPECT_TRUE(text->toPlainText().startsWith("PENSJA - płace i kadry"));
    gui_support::grab(&dlg, "frmPomoc");
}
