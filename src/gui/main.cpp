// pensja: the desktop program. Started in the working folder, which holds (or points through
// instalka.dat to) the data folder.
#include <QApplication>
#include <QTimer>
#include <filesystem>

#include "core/session.h"
#include "gui/mainwindow.h"
#include "gui/qtdialogs.h"
#include "gui/routes.h"
#include "reference/place.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("pensja");
    core::Session session;
    session.WorkDir = std::filesystem::current_path();
    core::Screens screens;
    gui::registerAllScreens(screens);
    gui::QtDialogs dialogs;
    dialogs.screens = &screens;
    dialogs.writerSession = &session;
    reference::PlaceScreen place(dialogs, session);
    gui::MainWindow win(place);
    dialogs.setParent(&win);
    win.view()->runWork([&] { place.Load(); });
    win.resize(760, 560);
    win.show();
    win.view()->runWork([&] { place.Activate(); });
    if (place.Unloaded) return 0;
    return app.exec();
}
