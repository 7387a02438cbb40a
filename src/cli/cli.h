// pensja-cli: the batch commands of the program, headless, on the same engine.
#pragma once
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/printer.h"
#include "core/session.h"

namespace cli {

// Boxes go to standard error as "[title] text"; questions are answered by --yes / --no, or on
// a terminal by the operator; otherwise the command stops naming the question.
class CliDialogs : public core::Dialogs {
public:
    std::optional<bool> answer;  // --yes / --no
    int errorBoxes = 0;          // boxes with a critical or warning icon
    core::Answer msgBox(const std::string& text, core::Buttons buttons, core::Icon icon, const std::string& title) override;
    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title, const std::string& def) override;
    void showForm(core::Form& form) override;
    // The folder given by the command (--out FOLDER) answers the folder box; without one the
    // folder is asked as any input.
    std::optional<std::string> folder;
    std::optional<std::string> folderBox(const std::string& title, const std::string& start) override;
    core::TextPrinter paper;
    core::Printer& printer() override { return paper; }
};

// A question that could not be answered: ends the command with a clear message.
struct Unanswered : std::runtime_error {
    using std::runtime_error::runtime_error;
};
// Bad arguments: exit status 2.
struct Usage : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Context {
    core::Session session;
    CliDialogs dialogs;
    std::vector<std::string> args;  // the command's own arguments
    std::string dataDir, payer, date;
    // Reads the installation record, the payer and the rates into the session (with the
    // overrides of --data, --payer, --date). Throws core::Error on a missing file.
    void openSession();
    // Takes --out FILE or --pdf FILE from the command's arguments (to be called before the
    // arguments are read), and after the printing writes the pages there, or to standard
    // output with pages separated by a form feed.
    void takePrintOptions();
    void emitPrint();
    std::string outFile, pdfFile;
};

struct Command {
    std::string usage;    // "words AMOUNT"
    std::string summary;  // one line in Polish
    std::function<int(Context&)> run;
};

std::map<std::string, Command>& commands();
// Registers a command at start-up: static cli::Register r("words", {...});
struct Register {
    Register(const std::string& name, Command c) { commands()[name] = std::move(c); }
};

}  // namespace cli
