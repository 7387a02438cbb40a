// The main window: frmPlace with its menu bar.
#pragma once
#include <QMainWindow>

#include "gui/formview.h"
#include "app/place.h"

namespace gui {

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(app::PlaceScreen& place);
    FormView* view() const { return view_; }

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    FormView* view_;
};

}  // namespace gui
