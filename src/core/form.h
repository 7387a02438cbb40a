// Screens. A screen is a Form whose members are its controls (named exactly as the controls,
// holding their state: text, caption, value, list, visibility) and whose methods are its
// commands. The Qt program builds one dialog per screen from the controls and keeps the widgets
// and the controls in step; tests drive the same screen headless.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/error.h"

namespace core {

class Form;

enum class Kind {
    Label,
    TextBox,
    CommandButton,
    CheckBox,
    OptionButton,
    ListBox,
    ComboBox,
    Frame,      // a captioned container; controls name it as their Container
    Grid,       // a grid of cell texts with fixed first row
    ProgressBar,
    TabStrip,   // tab captions in List, the chosen tab (1-based) in Value
    MonthView,  // a month calendar; the picked date in Text as dd-mm-rrrr
    FolderTree, // drive and folder choice; the folder in Text
    Menu,       // a menu entry; entries with children are drop-downs
    Timer       // fires Tick every Interval milliseconds while Enabled
};

class Control {
public:
    Control(Form* owner, std::string name, Kind kind, std::string caption = {});
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    std::string Name;
    Kind kind;
    std::string Caption;  // label, button, frame, check and option caption; menu caption
    std::string Text;     // text box and combo box text
    int Value = 0;        // check box 0/1, option button 0/1, progress, chosen tab (1-based)
    int Min = 0, Max = 100;
    bool Visible = true;
    bool Enabled = true;
    bool Locked = false;  // a text box that cannot be typed in
    bool Editable = false;  // a combo box that also takes a typed text
    std::string ToolTipText;
    std::vector<std::string> List;  // list and combo entries, tab captions
    int ListIndex = -1;
    int Interval = 0;  // timer

    // Grid: Rows x Cols cells, row 0 the headings; Row/Col the current cell. A multi-line text
    // box shows Rows lines.
    int Rows = 0, Cols = 0, Row = 0, Col = 0;
    std::vector<std::vector<std::string>> Cells;
    std::vector<int> ColWidth;  // in characters
    std::string& TextMatrix(int r, int c);
    const std::string& TextMatrix(int r, int c) const;
    void setGrid(int rows, int cols);

    // Placement, read by the Qt program: the container (a Frame's name, or empty for the
    // form), the row and the slot in its grid, the slots spanned, a label beside the control,
    // the width in characters, a fixed-pitch font, several lines.
    std::string Container;
    std::string Label;
    int LayoutRow = -1, LayoutSlot = 0, LayoutSpan = 1, LayoutRowSpan = 1;
    int Width = 0;
    bool Mono = false;
    // Colours as the classic controls hold them (0xBBGGRR), -1 for the default: the back colour
    // of a label, and the back colour of each row of a grid (by row number).
    long BackColor = -1;
    std::vector<long> RowColor;
    bool MultiLine = false;
    bool Password = false;
    std::string Parent;  // menus: the name of the drop-down holding this entry
    // A Label control of the screen shown in the place of this control's label (a label whose
    // caption the screen changes).
    std::string LabelControl;
    // The number of the record field a bound text box is saved into (0: none).
    int Field = 0;

    // Events.
    std::function<void()> Click, DblClick, Change, KeyEnter, LostFocus, Tick;

    // Fluent placement used by the screens' constructors.
    Control& at(int row, int slot = 0, int span = 1) {
        LayoutRow = row;
        LayoutSlot = slot;
        LayoutSpan = span;
        return *this;
    }
    // A control without its own label spanning `n` rows of its container's grid.
    Control& rows(int n) {
        LayoutRowSpan = n;
        return *this;
    }
    Control& in(std::string container) {
        Container = std::move(container);
        return *this;
    }
    Control& label(std::string l) {
        Label = std::move(l);
        return *this;
    }
    Control& width(int w) {
        Width = w;
        return *this;
    }
    Control& tip(std::string t) {
        ToolTipText = std::move(t);
        return *this;
    }
    Control& labelledBy(const Control& l) {
        LabelControl = l.Name;
        return *this;
    }
    Control& under(std::string menu) {
        Parent = std::move(menu);
        return *this;
    }

    void AddItem(std::string s) { List.push_back(std::move(s)); }
    void Clear() {
        List.clear();
        ListIndex = -1;
    }
    // The text of the chosen list entry, or "" when none is chosen.
    std::string selectedText() const;

    Form* owner;
};

// A screen: its name (frmXxx), its caption, its controls in the order of declaration.
class Form {
public:
    Form(Dialogs& ui, std::string name, std::string caption, ReportWords words = ReportWords::Linii);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    // Form_Load: called once before the screen is shown. A screen may unload itself here.
    virtual void Load() {}

    // Runs an event of a control, showing the screen's error report for an error that the
    // handler did not catch itself.
    void fire(Control& c, std::function<void()> Control::*event);
    // Runs any piece of the screen's work in the same way.
    void guarded(const std::function<void()>& work);
    // The box of an error: a text refused by a file names the box of its field (its label) and
    // moves the focus there; any other error gets the screen's error report in `words`.
    void showError(const Error& e, ReportWords words);
    void showError(const Error& e) { showError(e, Words); }

    Control* find(const std::string& name);
    const std::vector<Control*>& controls() const { return controls_; }

    void Unload() { Unloaded = true; }
    // Sets one option button of its container and clears the others there.
    void setOption(Control& option);
    // Moves the focus to a control after the current event.
    void SetFocus(Control& c) { FocusTo = c.Name; }
    // Lets the screen repaint in the middle of long work.
    void DoEvents() { ui.doEvents(*this); }

    Dialogs& ui;
    std::string Name;
    std::string Caption;
    ReportWords Words;
    std::string ErrorTitle;  // the title of the error report box, when the screen gives one
    bool Unloaded = false;
    bool Visible = true;
    std::string FocusTo;

private:
    friend class Control;
    Control* controlOfField(const TextRefused& e);
    std::vector<Control*> controls_;
};

}  // namespace core
