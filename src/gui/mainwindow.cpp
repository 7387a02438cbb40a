#include "gui/mainwindow.h"

#include <QCloseEvent>
#include <QMenuBar>

#include "gui/qtext.h"

namespace gui {

MainWindow::MainWindow(app::PlaceScreen& place) {
    setObjectName("frmPlace");
    view_ = new FormView(place, this);
    if (view_->menuBar()) setMenuBar(view_->menuBar());
    setCentralWidget(view_);
    setWindowTitle(q(place.Caption));
    view_->onUnload = [this] { close(); };
}

void MainWindow::closeEvent(QCloseEvent* e) {
    view_->form().Unloaded = true;
    QMainWindow::closeEvent(e);
}

}  // namespace gui
