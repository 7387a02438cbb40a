#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QFileSystemModel>
#include <QTreeView>
#include <QCoreApplication>
#include <QElapsedTimer>

#include "core/text.h"
#include "gui/mainwindow.h"
#include "gui/qtdialogs.h"
#include "gui/routes.h"
#include "gui_support.h"
#include "reference/podatki.h"
#include "reference/rates.h"
#include "support/demo.h"
#include "support/scripted.h"

using testing_support::ScriptedDialogs;

TEST(PodatkiGui, TypedRateIsSavedForTheYearOfTheList) {
    testing_support::Demo demo;
    ScriptedDialogs ui;
    reference::PodatkiScreen screen(ui, demo.s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    auto* stawka = dlg.findChild<QLineEdit*>("txtStawka1");
    ASSERT_NE(stawka, nullptr);
    EXPECT_EQ(stawka->text(), "17");
    EXPECT_EQ(dlg.findChild<QLabel*>("Label18")->text(), "Stawki obowiazujace na 2021 rok");
    EXPECT_EQ(dlg.findChild<QLabel*>("Label36")->text(), "53.03");  // 4242.38 * 1.25 / 100
    gui_support::grab(&dlg, "frmPodatki");
    stawka->setText("17,5");
    dlg.findChild<QPushButton*>("cmdZapisz")->click();
    EXPECT_EQ(dlg.findChild<QLabel*>("Label34")->text(), "Zapisane zmiany do 2021 roku");
    bool found = false;
    auto r = reference::Dane::readYear(reference::Dane::path(demo.s), "2021", &found);
    ASSERT_TRUE(found);
    EXPECT_EQ(r.s(reference::Dane::Stawka1), "17.5");
    EXPECT_TRUE(ui.boxes.empty());
}

TEST(MainWindowGui, MenuEntriesFollowTheScreensThatExist) {
    testing_support::Demo demo;
    ScriptedDialogs ui;
    ui.type(std::string("demo"));
    core::Screens screens;
    gui::registerAllScreens(screens);
    ui.screens = &screens;
    app::PlaceScreen place(ui, demo.s);
    gui::MainWindow win(place);
    win.view()->runWork([&] { place.Load(); });
    win.view()->runWork([&] { place.Activate(); });
    EXPECT_FALSE(place.Unloaded);
    EXPECT_EQ(ui.last(), "[Dzień dobry witaj w Płacach] Ok masz dostęp!");
    auto* stawki = win.findChild<QAction*>("stawki");
    ASSERT_NE(stawki, nullptr);
    EXPECT_TRUE(stawki->isEnabled());
    EXPECT_EQ(stawki->text(), "&Stawki");
    auto* pzu = win.findChild<QAction*>("mnuPZU");
    ASSERT_NE(pzu, nullptr);
    EXPECT_FALSE(pzu->isEnabled());
    EXPECT_FALSE(pzu->toolTip().isEmpty());
    EXPECT_EQ(win.findChild<QLabel*>("lbPlatnik")->text(), "DEMO");
    EXPECT_EQ(win.findChild<QLabel*>("lbAdministrator")->text(), "Anna Kowalska Główna księgowa");
    EXPECT_EQ(win.findChild<QLineEdit*>("txtDataListyS")->text(), "31-01-2021");
    win.resize(760, 520);
    gui_support::grab(&win, "frmPlace");
    // The folder tree, hidden at the start, has read nothing; shown, it holds the data folder.
    auto* drzewo = win.findChild<QTreeView*>("dirFolder");
    ASSERT_NE(drzewo, nullptr);
    auto* model = static_cast<QFileSystemModel*>(drzewo->model());
    EXPECT_TRUE(model->rootPath().isEmpty() || model->rootPath() == ".") << model->rootPath().toStdString();
    win.view()->runWork([&] { place.Sciezka(); });
    EXPECT_TRUE(drzewo->isVisibleTo(&win));
    EXPECT_EQ(model->rootPath().toStdString(), QDir::cleanPath(QString::fromStdString(place.dirFolder.Text)).toStdString());
    EXPECT_EQ(model->filePath(drzewo->rootIndex()), model->rootPath());
    // The subfolders come in from the model's reader: the payer's folder among them.
    QElapsedTimer czas;
    czas.start();
    while (model->rowCount(drzewo->rootIndex()) == 0 && czas.elapsed() < 5000) QCoreApplication::processEvents();
    QStringList podfoldery;
    for (int i = 0; i < model->rowCount(drzewo->rootIndex()); ++i)
        podfoldery << model->fileName(model->index(i, 0, drzewo->rootIndex()));
    EXPECT_TRUE(podfoldery.contains("DEMO")) << podfoldery.join(",").toStdString();
    gui_support::grab(&win, "frmPlace-folder");
}
