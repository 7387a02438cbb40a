// The generic binding between a screen of the engine and Qt widgets: builds one widget per
// control (objectName = the control's name), lays them out by the controls' placement, keeps
// widgets and controls in step around every event, and runs the controls' events.
#pragma once
#include <QWidget>
#include <functional>
#include <map>
#include <set>

#include "core/form.h"

class QMenuBar;
class QGridLayout;
class QTimer;

namespace gui {

class FormView : public QWidget {
    Q_OBJECT
public:
    explicit FormView(core::Form& form, QWidget* parent = nullptr);
    ~FormView() override;

    core::Form& form() { return form_; }
    // The menu bar of the screen's menu controls, or null when it has none. The caller
    // places it (a dialog's layout, a main window).
    QMenuBar* menuBar() const { return menuBar_; }

    // Widgets -> controls.
    void pull();
    // Controls -> widgets.
    void push();
    // Runs an event of a control: pull, the event, push, focus; closes when unloaded.
    void run(core::Control& c, std::function<void()> core::Control::*event);
    // Runs any work of the screen the same way.
    void runWork(const std::function<void()>& work);

    QWidget* widget(const std::string& name) const;
    // Called when the screen unloads itself.
    std::function<void()> onUnload;

    // The view showing a form, if any (for doEvents).
    static FormView* of(core::Form& f);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    QWidget* make(core::Control& c);
    void place(core::Control& c, QWidget* w);
    void pushOne(core::Control& c, QWidget* w);
    void pullOne(core::Control& c, QWidget* w);
    void afterEvent();

    core::Form& form_;
    QGridLayout* grid_ = nullptr;
    QMenuBar* menuBar_ = nullptr;
    std::map<std::string, QWidget*> widgets_;
    std::map<std::string, QGridLayout*> containers_;
    std::map<std::string, int> nextRow_;
    std::map<QObject*, core::Control*> filtered_;
    std::map<std::string, class QAction*> actions_;
    std::map<std::string, class QMenu*> menus_;
    std::map<std::string, QTimer*> timers_;
    std::map<std::string, QWidget*> labels_;
    std::set<std::string> buddies_;
    bool busy_ = false;
};

}  // namespace gui
