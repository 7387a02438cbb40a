#include "gui_support.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

namespace gui_support {

void grab(QWidget* w, const std::string& name) {
    QDir().mkpath(PENSJA_SCREENSHOTS);
    w->adjustSize();
    w->show();
    QApplication::processEvents();
    w->grab().save(QString(PENSJA_SCREENSHOTS) + "/" + QString::fromStdString(name) + ".png");
}

}  // namespace gui_support
