// How the engine talks to the operator: message boxes, input boxes, opening another screen
// and letting the screen repaint during long work. The Qt program, the command line and the
// tests each give their own implementation.
#pragma once
#include <optional>
#include <string>

namespace core {

class Form;
class Printer;
class Screens;
struct Session;

enum class Buttons { OK, OKCancel, AbortRetryIgnore, YesNoCancel, YesNo, RetryCancel };
enum class Icon { None, Critical, Question, Exclamation, Information };
// The answers carry the numbers of the classic message box.
enum class Answer { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual Answer msgBox(const std::string& text, Buttons buttons = Buttons::OK, Icon icon = Icon::None,
                          const std::string& title = {}) = 0;
    // The typed text, or nothing when the operator cancelled.
    virtual std::optional<std::string> inputBox(const std::string& prompt, const std::string& title = {},
                                                const std::string& def = {}) = 0;
    // A folder chosen by the operator (a folder dialog in the program), or nothing when
    // cancelled. Where no such dialog exists the folder is typed in an input box.
    virtual std::optional<std::string> folderBox(const std::string& title, const std::string& start = {}) {
        return inputBox("Folder:", title, start);
    }
    // Shows a screen modally and returns when it is closed.
    virtual void showForm(Form& form) = 0;
    // Lets a screen busy with long work show its controls' new state (a progress bar).
    virtual void doEvents(Form& form) {}
    // The printer the screens print on (a preview with PDF and the system printer in the
    // program, collected text on the command line and in tests).
    virtual Printer& printer() = 0;

    // The screens of the program by name (a main menu entry such as "stawki", or a screen
    // opened from another screen such as "frmPlaca"). A screen of a subsystem opens a screen of
    // a subsystem to its right only through this.
    const Screens* screens = nullptr;
    bool canOpen(const std::string& name) const;
    // Opens the named screen; false when this program has none of that name.
    bool open(const std::string& name, Session& s);
};

// A short alias for the common box with OK only.
inline void MsgBox(Dialogs& d, const std::string& text, const std::string& title = {}, Icon icon = Icon::None) {
    d.msgBox(text, Buttons::OK, icon, title);
}

}  // namespace core
