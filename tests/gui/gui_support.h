// Screenshots of the screen tests.
#pragma once
#include <QWidget>
#include <string>

namespace gui_support {

// Saves a picture of the widget's window as <build>/screenshots/<name>.png.
void grab(QWidget* w, const std::string& name);

}  // namespace gui_support
