#include "gui_support.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include "reference/payers.h"
#include "reference/rates.h"

namespace gui_support {

DemoSession::DemoSession() {
    testing_support::copyTree(PENSJA_DEMO, dir.path());
    session.WorkDir = dir.path();
    session.takeInstalka(core::Instalka::read(dir.path()));
    reference::selectPayer(session);
    reference::loadRates(session);
}

void grab(QWidget* w, const std::string& name) {
    QDir().mkpath(PENSJA_SCREENSHOTS);
    w->adjustSize();
    w->show();
    QApplication::processEvents();
    w->grab().save(QString(PENSJA_SCREENSHOTS) + "/" + QString::fromStdString(name) + ".png");
}

}  // namespace gui_support
