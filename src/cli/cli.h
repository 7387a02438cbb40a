// pensja-cli: the batch commands of the program, headless, on the same engine.
#pragma once
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/printer.h"
#include "core/session.h"
#include "core/writelock.h"
#include "printing/spool.h"

namespace cli {

// The printed text on its way out (lines end with "\n", pages are separated by a form feed),
// kept in a temporary file until the command ends well.
class TextSpool : public core::PageSink {
public:
    TextSpool();
    ~TextSpool() override;
    TextSpool(const TextSpool&) = delete;
    TextSpool& operator=(const TextSpool&) = delete;
    void beginPage() override;
    void line(const core::PrintLine& l) override;
    // Hands the text out in pieces.
    void copy(const std::function<void(std::string_view)>& out);

private:
    std::FILE* plikTymczasowy;
    bool pierwszaStrona = true;
};

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
    // The pages go to `text`, or with --pdf to `pdf`, as they are printed.
    TextSpool text;
    std::unique_ptr<printing::Spool> pdf;
    core::StreamPrinter paper{&text};
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
    bool writes = true;  // the command's Register entry: it changes files
    bool wait = false;   // --wait: a writer waits for another writer instead of ending
    // Reads the installation record, the payer and the rates into the session (with the
    // overrides of --data, --payer, --date). Throws core::Error on a missing file, Error 52
    // on a --payer that would lead out of the data folder. A writing command takes the writer
    // lock of the data folder and the payer here and holds it to its end: core::Busy when
    // another program holds it (exit status 1), or it waits with --wait.
    void openSession();
    // Opens the session (openSession) and the list `stem` as the choice of a list opens it:
    // its name, group, number and reserve from instal.dat, the paths of its pay and personnel
    // files. A list instal.dat does not hold is refused when `mustExist`; otherwise it is opened
    // by its file name alone, which must be a valid one.
    void openList(const std::string& stem, bool mustExist);
    std::optional<core::WriterLock> lock;
    // Takes --out FILE or --pdf FILE from the command's arguments (to be called before the
    // arguments are read), and after the printing writes the pages there, or to standard
    // output with pages separated by a form feed.
    void takePrintOptions();
    void emitPrint();
    std::string outFile, pdfFile;
};

// Whether a command changes files: every command is a writer (it holds the writer lock) unless
// its entry says cli::Reads.
enum Access : bool { Reads = false, Writes = true };

struct Command {
    std::string usage;    // "words AMOUNT"
    std::string summary;  // one line in Polish
    std::function<int(Context&)> run;
    Access access = Writes;
};

std::map<std::string, Command>& commands();
// Registers a command at start-up: static cli::Register r("words", {...});
struct Register {
    Register(const std::string& name, Command c) { commands()[name] = std::move(c); }
};

}  // namespace cli
