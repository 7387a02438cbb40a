#include "gui/qtdialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QVBoxLayout>

#include "gui/qtext.h"

namespace gui {

ScreenDialog::ScreenDialog(core::Form& form, QWidget* parent) : QDialog(parent) {
    setObjectName(q(form.Name) + "_dialog");
    auto* layout = new QVBoxLayout(this);
    view_ = new FormView(form, this);
    if (view_->menuBar()) layout->setMenuBar(view_->menuBar());
    layout->addWidget(view_);
    setWindowTitle(q(form.Caption));
    view_->onUnload = [this] { accept(); };
}

void ScreenDialog::closeEvent(QCloseEvent* e) {
    view_->form().Unloaded = true;
    QDialog::closeEvent(e);
}

void ScreenDialog::keyPressEvent(QKeyEvent* e) {
    // Enter belongs to the text boxes of the screen, not to a default button.
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) return;
    QDialog::keyPressEvent(e);
}

QWidget* QtDialogs::activeParent() const {
    if (QWidget* w = QApplication::activeModalWidget()) return w;
    if (QWidget* w = QApplication::activeWindow()) return w;
    return parent_;
}

core::Answer QtDialogs::msgBox(const std::string& text, core::Buttons buttons, core::Icon icon, const std::string& title) {
    QMessageBox box(activeParent());
    box.setText(q(text));
    box.setWindowTitle(q(title.empty() ? std::string("pensja") : title));
    switch (icon) {
    case core::Icon::Critical: box.setIcon(QMessageBox::Critical); break;
    case core::Icon::Question: box.setIcon(QMessageBox::Question); break;
    case core::Icon::Exclamation: box.setIcon(QMessageBox::Warning); break;
    case core::Icon::Information: box.setIcon(QMessageBox::Information); break;
    case core::Icon::None: break;
    }
    using B = QMessageBox;
    switch (buttons) {
    case core::Buttons::OK: box.setStandardButtons(B::Ok); break;
    case core::Buttons::OKCancel: box.setStandardButtons(B::Ok | B::Cancel); break;
    case core::Buttons::AbortRetryIgnore: box.setStandardButtons(B::Abort | B::Retry | B::Ignore); break;
    case core::Buttons::YesNoCancel: box.setStandardButtons(B::Yes | B::No | B::Cancel); break;
    case core::Buttons::YesNo: box.setStandardButtons(B::Yes | B::No); break;
    case core::Buttons::RetryCancel: box.setStandardButtons(B::Retry | B::Cancel); break;
    }
    if (auto* b = box.button(B::Yes)) b->setText("&Tak");
    if (auto* b = box.button(B::No)) b->setText("&Nie");
    if (auto* b = box.button(B::Cancel)) b->setText("&Anuluj");
    if (auto* b = box.button(B::Abort)) b->setText("&Przerwij");
    if (auto* b = box.button(B::Retry)) b->setText("Ponó&w");
    if (auto* b = box.button(B::Ignore)) b->setText("&Ignoruj");
    int r = box.exec();
    switch (r) {
    case B::Ok: return core::Answer::OK;
    case B::Cancel: return core::Answer::Cancel;
    case B::Abort: return core::Answer::Abort;
    case B::Retry: return core::Answer::Retry;
    case B::Ignore: return core::Answer::Ignore;
    case B::Yes: return core::Answer::Yes;
    case B::No: return core::Answer::No;
    default:
        return buttons == core::Buttons::YesNo ? core::Answer::No
               : buttons == core::Buttons::OK  ? core::Answer::OK
                                               : core::Answer::Cancel;
    }
}

std::optional<std::string> QtDialogs::inputBox(const std::string& prompt, const std::string& title, const std::string& def) {
    QInputDialog dlg(activeParent());
    dlg.setWindowTitle(q(title.empty() ? std::string("pensja") : title));
    dlg.setLabelText(q(prompt));
    dlg.setTextValue(q(def));
    dlg.setOkButtonText("OK");
    dlg.setCancelButtonText("Anuluj");
    if (dlg.exec() != QDialog::Accepted) return std::nullopt;
    return s(dlg.textValue());
}

std::optional<std::string> QtDialogs::folderBox(const std::string& title, const std::string& start) {
    QString dir = QFileDialog::getExistingDirectory(activeParent(), q(title), q(start));
    if (dir.isEmpty()) return std::nullopt;
    return s(dir);
}

void QtDialogs::showForm(core::Form& form) {
    ScreenDialog dlg(form, activeParent());
    dlg.view()->runWork([&] { form.Load(); });
    if (form.Unloaded) return;
    dlg.exec();
}

void QtDialogs::doEvents(core::Form& form) {
    if (FormView* v = FormView::of(form)) v->push();
    QApplication::processEvents();
}

}  // namespace gui
