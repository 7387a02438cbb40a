// One writer at a time: a command that changes files holds an exclusive advisory lock on the
// data folder (the files above the payers: instalka.dat, MojaFirma.txt, dane) and on the folder
// of the session's payer for its whole run, in the program and on the command line alike.
// Readers take no lock. Locks are counted per process, so a command inside a command (a screen
// opened by a button) takes nothing twice.
#pragma once
#include <stdexcept>
#include <string>
#include <vector>

namespace core {

struct Session;

// The lock is held by another program: the box's title and text name it and its process.
struct Busy : std::runtime_error {
    Busy(std::string title, std::string text);
    std::string Title, Text;
};

class WriterLock {
public:
    enum class Mode { Fail, Wait };
    // Locks the data folder of `s` and, when the session has a payer with a folder, the payer's
    // folder. Mode::Fail throws Busy when another process holds either; Mode::Wait waits.
    explicit WriterLock(const Session& s, Mode mode = Mode::Fail);
    ~WriterLock();
    WriterLock(const WriterLock&) = delete;
    WriterLock& operator=(const WriterLock&) = delete;

    // While a Pause lives, this process lets go of the locks it holds (a command waits for a
    // screen it opened: that screen's commands lock for themselves, and other programs may
    // write meanwhile); they are taken again, waiting if need be, when it ends.
    class Pause {
    public:
        Pause();
        ~Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        std::vector<std::pair<std::string, int>> saved_;
    };

    // The name of the lock file kept in each locked folder.
    static constexpr const char* kFile = ".pensja-zapis.lock";

private:
    std::vector<std::string> held_;
};

}  // namespace core
