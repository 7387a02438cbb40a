// Message boxes, input boxes and screens shown with Qt.
#pragma once
#include <QDialog>

#include "core/dialogs.h"
#include "gui/formview.h"
#include "gui/qtprinter.h"

namespace gui {

// One screen of the engine as a modal dialog.
class ScreenDialog : public QDialog {
    Q_OBJECT
public:
    ScreenDialog(core::Form& form, QWidget* parent);
    FormView* view() const { return view_; }

protected:
    void closeEvent(QCloseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    FormView* view_;
};

class QtDialogs : public core::Dialogs {
public:
    explicit QtDialogs(QWidget* parent = nullptr) : parent_(parent) {}
    void setParent(QWidget* p) {
        parent_ = p;
        printer_.setParent(p);
    }
    core::Answer msgBox(const std::string& text, core::Buttons buttons, core::Icon icon, const std::string& title) override;
    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title, const std::string& def) override;
    std::optional<std::string> folderBox(const std::string& title, const std::string& start) override;
    void showForm(core::Form& form) override;
    void doEvents(core::Form& form) override;
    core::Printer& printer() override { return printer_; }
    QtPrinter& qtPrinter() { return printer_; }

private:
    QWidget* activeParent() const;
    QWidget* parent_;
    QtPrinter printer_;
};

}  // namespace gui
