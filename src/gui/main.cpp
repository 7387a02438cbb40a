// pensja: the desktop program. Started in the working folder, which holds (or points through
// instalka.dat to) the data folder.
#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTimer>
#include <filesystem>

#include "core/session.h"
#include "gui/mainwindow.h"
#include "gui/qtdialogs.h"
#include "gui/routes.h"
#include "app/folder_danych.h"
#include "app/place.h"

namespace fs = std::filesystem;

// Started from the desktop menu the working folder is the home folder, which holds no data:
// the folder chosen once is remembered, and the first time the operator is asked for it.
static void przejdzDoFolderuDanych(core::Dialogs& ui) {
    if (app::jestFolderemDanych(fs::current_path())) return;
    QSettings ustawienia("pensja", "pensja");
    fs::path zapamietany = ustawienia.value("folderDanych").toString().toStdString();
    if (zapamietany.empty() || !app::jestFolderemDanych(zapamietany)) {
        fs::path demo = app::folderDemo(QCoreApplication::applicationDirPath().toStdString());
        fs::path domyslny = fs::path(QDir::homePath().toStdString()) / "pensja-dane";
        auto wybrany = app::wybierzFolderDanych(ui, demo, domyslny);
        if (!wybrany) return;
        zapamietany = fs::absolute(*wybrany);
        ustawienia.setValue("folderDanych", QString::fromStdString(zapamietany.string()));
    }
    fs::current_path(zapamietany);
}

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("pensja");
    gui::QtDialogs dialogs;
    przejdzDoFolderuDanych(dialogs);
    core::Session session;
    session.WorkDir = std::filesystem::current_path();
    core::Screens screens;
    gui::registerAllScreens(screens);
    dialogs.screens = &screens;
    dialogs.writerSession = &session;
    app::PlaceScreen place(dialogs, session);
    gui::MainWindow win(place);
    dialogs.setParent(&win);
    win.view()->runWork([&] { place.Load(); });
    win.resize(760, 560);
    win.show();
    win.view()->runWork([&] { place.Activate(); });
    if (place.Unloaded) return 0;
    return app.exec();
}
