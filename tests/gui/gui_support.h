// Helpers of the screen tests: a demo data folder with an open session, screenshots.
#pragma once
#include <QWidget>
#include <string>

#include "core/session.h"
#include "support/tempdir.h"

namespace gui_support {

// A copy of demo/ with a session opened on it as the program opens it (installation record,
// payer, rates of the year of the list date).
struct DemoSession {
    testing_support::TempDir dir;
    core::Session session;
    DemoSession();
};

// Saves a picture of the widget's window as <build>/screenshots/<name>.png.
void grab(QWidget* w, const std::string& name);

}  // namespace gui_support
