#include <unistd.h>

#include <cstdio>
#include <iostream>

#include "cli/cli.h"
#include "core/error.h"
#include "core/form.h"
#include "core/paths.h"
#include "core/text.h"
#include "reference/catalogue.h"
#include "reference/payers.h"
#include "reference/rates.h"

namespace cli {

std::map<std::string, Command>& commands() {
    static std::map<std::string, Command> c;
    return c;
}

core::Answer CliDialogs::msgBox(const std::string& text, core::Buttons buttons, core::Icon icon, const std::string& title) {
    std::cerr << "[" << title << "] " << text << std::endl;
    if (icon == core::Icon::Critical || icon == core::Icon::Exclamation) ++errorBoxes;
    if (buttons == core::Buttons::OK) return core::Answer::OK;
    bool yesNo = buttons == core::Buttons::YesNo || buttons == core::Buttons::YesNoCancel;
    core::Answer yes = yesNo ? core::Answer::Yes : buttons == core::Buttons::AbortRetryIgnore ? core::Answer::Retry
                       : buttons == core::Buttons::RetryCancel                                 ? core::Answer::Retry
                                                                                                : core::Answer::OK;
    core::Answer no = yesNo ? core::Answer::No : buttons == core::Buttons::AbortRetryIgnore ? core::Answer::Abort
                                                                                           : core::Answer::Cancel;
    if (answer) return *answer ? yes : no;
    if (::isatty(0)) {
        std::cerr << (yesNo ? "Tak/Nie [t/n]: " : "OK/Anuluj [t/n]: ") << std::flush;
        std::string line;
        std::getline(std::cin, line);
        std::string a = core::LCase(core::Trim(line));
        return (a == "t" || a == "tak" || a == "y" || a == "yes" || a == "ok") ? yes : no;
    }
    throw Unanswered("pytanie bez odpowiedzi (użyj --yes lub --no): [" + title + "] " + text);
}

std::optional<std::string> CliDialogs::inputBox(const std::string& prompt, const std::string& title, const std::string& def) {
    std::cerr << "[" << title << "] " << prompt << std::endl;
    if (::isatty(0)) {
        std::string line;
        if (!std::getline(std::cin, line)) return std::nullopt;
        return line.empty() ? def : line;
    }
    throw Unanswered("pytanie bez odpowiedzi: [" + title + "] " + prompt);
}

std::optional<std::string> CliDialogs::folderBox(const std::string& title, const std::string& start) {
    if (folder) return folder;
    return core::Dialogs::folderBox(title, start);
}

void CliDialogs::showForm(core::Form& form) {
    form.guarded([&] { form.Load(); });
}

void Context::openSession() {
    session.WorkDir = std::filesystem::current_path();
    std::filesystem::path folder = dataDir.empty() ? session.WorkDir : std::filesystem::path(dataDir);
    if (dataDir.empty()) {
        session.takeInstalka(core::Instalka::read(folder));
        folder = session.katalog();
    }
    if (!payer.empty()) core::checkPathPart(payer);
    if (writes) {
        core::Session where = session;
        where.Katalog = folder.string();
        where.SkrotPlatnika = payer;
        if (payer.empty()) where.SkrotPlatnika = core::Instalka::read(folder).s(core::Instalka::SkrotPlatnika);
        lock.emplace(where, wait ? core::WriterLock::Mode::Wait : core::WriterLock::Mode::Fail);
    }
    session.takeInstalka(core::Instalka::read(folder));
    if (!dataDir.empty()) session.Katalog = std::filesystem::absolute(dataDir).string();
    if (!payer.empty()) session.SkrotPlatnika = payer;
    if (!date.empty()) session.DataListy = date;
    session.OkresListy = core::Mid(session.DataListy, 4, 2) + core::Right(session.DataListy, 2);
    reference::selectPayer(session);
    reference::loadRates(session);
}

void Context::openList(const std::string& stem, bool mustExist) {
    if (!mustExist && !reference::badListStem(stem).empty()) throw Usage("zła nazwa listy: " + stem);
    openSession();
    core::Session& s = session;
    std::vector<core::Record> lines = reference::Instal::read(s);
    const int i = reference::Instal::findByStem(lines, stem);
    if (i < 0 && mustExist) throw Usage("płatnik " + s.SkrotPlatnika + " nie ma listy " + stem + " w instal.dat");
    s.NazwaZbioru = stem;
    if (i >= 0) {
        const core::Record& l = lines[static_cast<std::size_t>(i)];
        s.NazwaListy = l.s(reference::Instal::NazwaListy);
        s.Grupa = l.s(reference::Instal::Grupa);
        s.NumerListy = l.s(reference::Instal::NumerListy);
        s.Rezerwa4 = l.s(reference::Instal::Rezerwa4);
    }
    s.SciezkaBazy = s.payerPath({"bazy", stem + ".dta"});
    s.SciezkaOsob = s.payerPath({"person", stem + ".per"});
}

}  // namespace cli

static void usage(std::ostream& out) {
    out << "Użycie: pensja-cli [--data FOLDER] [--payer SKRÓT] [--date dd-mm-rrrr] [--yes|--no] [--wait] POLECENIE "
           "[ARGUMENTY]\n\n"
           "Polecenie, które zmienia pliki, zajmuje na czas pracy folder danych i folder Płatnika; gdy zmienia je\n"
           "właśnie inny program, kończy się od razu z kodem 1 i nazwą tego programu, a z --wait czeka, aż skończy.\n\n"
           "Polecenia:\n";
    for (auto& [name, c] : cli::commands()) out << "  " << c.usage << "\n      " << c.summary << "\n";
}

// The manual page, from the same table as --help.
static std::string roff(const std::string& text) {
    std::string out;
    for (char ch : text) {
        if (ch == '\\') out += "\\e";
        else if (ch == '-') out += "\\-";
        else out += ch;
    }
    if (!out.empty() && (out[0] == '.' || out[0] == '\'')) out = "\\&" + out;
    return out;
}

static void manual(std::ostream& out) {
    out << ".TH PENSJA\\-CLI 1 \"\" \"pensja\" \"Polecenia programu pensja\"\n"
           ".SH NAZWA\npensja\\-cli \\- polecenia wsadowe programu płacowo\\-kadrowego pensja\n"
           ".SH SKŁADNIA\n.B pensja\\-cli\n"
        << roff("[--data FOLDER] [--payer SKRÓT] [--date dd-mm-rrrr] [--yes|--no] [--wait] POLECENIE [ARGUMENTY]") << "\n"
        << ".SH OPIS\n"
        << roff("Wykonuje polecenia programu pensja bez okien, na tych samych plikach danych. "
                "Bez --data folder danych ustala się jak przy starcie programu (instalka.dat w folderze roboczym); "
                "--payer i --date zmieniają sesję tylko na to wywołanie. Każde okno komunikatu trafia na "
                "standardowe wyjście błędów jako [tytuł] tekst; na pytania odpowiada --yes lub --no. Polecenie, "
                "które zmienia pliki, kończy się kodem 1, gdy dane zmienia inny program; z --wait czeka.")
        << "\n.SH POLECENIA\n";
    for (auto& [name, c] : cli::commands()) out << ".TP\n.B " << roff(c.usage) << "\n" << roff(c.summary) << "\n";
    out << ".SH KOD WYJŚCIA\n0 sukces, 1 polecenie zakończone komunikatem o błędzie, 2 złe argumenty.\n"
           ".SH ZOBACZ TAKŻE\n.BR pensja (1)\n";
}

int main(int argc, char** argv) {
    // Everything goes through the C++ streams: they need not keep step with C's, and a long
    // output (calc --all of a whole list) is written in large parts. Standard input is tied to
    // standard output, so a question still shows what came before it.
    std::ios::sync_with_stdio(false);
    cli::Context ctx;
    std::string command;
    int i = 1;
    auto value = [&](const std::string& opt) -> std::string {
        if (i + 1 >= argc) throw cli::Usage("brak wartości opcji " + opt);
        return argv[++i];
    };
    try {
        for (; i < argc; ++i) {
            std::string a = argv[i];
            if (!command.empty()) {
                ctx.args.push_back(a);
            } else if (a == "--data") {
                ctx.dataDir = value(a);
            } else if (a == "--payer") {
                ctx.payer = value(a);
            } else if (a == "--date") {
                ctx.date = value(a);
            } else if (a == "--wait") {
                ctx.wait = true;
            } else if (a == "--yes") {
                ctx.dialogs.answer = true;
            } else if (a == "--no") {
                ctx.dialogs.answer = false;
            } else if (a == "--help" || a == "-h") {
                usage(std::cout);
                return 0;
            } else if (a == "--man") {
                manual(std::cout);
                return 0;
            } else if (!a.empty() && a[0] == '-') {
                throw cli::Usage("nieznana opcja " + a);
            } else {
                command = a;
            }
        }
        if (command.empty()) throw cli::Usage("nie podano polecenia");
        auto it = cli::commands().find(command);
        if (it == cli::commands().end()) throw cli::Usage("nieznane polecenie " + command);
        ctx.writes = it->second.access == cli::Writes;
        int rc = it->second.run(ctx);
        std::cout.flush();
        return rc;
    } catch (const cli::Usage& e) {
        std::cerr << "pensja-cli: " << e.what() << "\n\n";
        usage(std::cerr);
        return 2;
    } catch (const cli::Unanswered& e) {
        std::cerr << "pensja-cli: " << e.what() << "\n";
        return 1;
    } catch (const core::Error& e) {
        std::cerr << "pensja-cli:" << core::errorReport(e) << "\n";
        return 1;
    } catch (const core::Busy& b) {
        std::cerr << "[" << b.Title << "] " << b.Text << "\n";
        return 1;
    } catch (const std::exception& e) {
        std::cerr << "pensja-cli: " << e.what() << "\n";
        return 1;
    }
}
