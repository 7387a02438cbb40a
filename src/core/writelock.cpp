#include "core/writelock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <map>

#include "core/paths.h"
#include "core/session.h"

namespace fs = std::filesystem;

namespace core {

Busy::Busy(std::string title, std::string text) : std::runtime_error(text), Title(std::move(title)), Text(std::move(text)) {}

namespace {

// A lock file of this process: how many holders it has, how many of them a Pause has set
// aside, and whether the lock is taken at the moment.
struct Entry {
    int fd = -1;
    int count = 0;
    int paused = 0;
    bool locked = false;
};

std::map<std::string, Entry>& entries() {
    static std::map<std::string, Entry> e;
    return e;
}

// "pensja-cli 1234" as the lock file holds it, in the words of the box.
std::string holderOf(int fd) {
    char buf[256];
    ssize_t n = ::pread(fd, buf, sizeof buf - 1, 0);
    std::string t(buf, n > 0 ? static_cast<std::size_t>(n) : 0);
    while (!t.empty() && (t.back() == '\n' || t.back() == '\r')) t.pop_back();
    std::size_t sp = t.rfind(' ');
    if (t.empty() || sp == std::string::npos || sp == 0) return "inny program";
    return "program " + t.substr(0, sp) + " (proces " + t.substr(sp + 1) + ")";
}

void writeHolder(int fd) {
    std::string me = std::string(program_invocation_short_name) + " " + std::to_string(::getpid()) + "\n";
    if (::ftruncate(fd, 0) == 0 && ::pwrite(fd, me.data(), me.size(), 0) < 0) {
        // The name of the holder is a courtesy to the other program: the lock holds without it.
    }
}

// Takes the lock of an entry; false (and the holder in `holder`) when another process has it.
bool lockEntry(Entry& e, WriterLock::Mode mode, std::string& holder) {
    int r;
    while ((r = ::flock(e.fd, LOCK_EX | LOCK_NB)) != 0 && errno == EINTR) {
    }
    if (r != 0 && errno == EWOULDBLOCK) {
        if (mode == WriterLock::Mode::Fail) {
            holder = holderOf(e.fd);
            return false;
        }
        while ((r = ::flock(e.fd, LOCK_EX)) != 0 && errno == EINTR) {
        }
    }
    // A file system without locks lets the command run, as the start does without its guard.
    if (r == 0) writeHolder(e.fd);
    e.locked = true;
    return true;
}

void release(const std::string& key) {
    auto it = entries().find(key);
    if (it == entries().end()) return;
    Entry& e = it->second;
    --e.count;
    if (e.locked && e.count <= e.paused) {
        ::flock(e.fd, LOCK_UN);
        e.locked = false;
    }
    if (e.count <= 0) {
        ::close(e.fd);
        entries().erase(it);
    }
}

// Locks `folder` and gives the key of its entry; "" when the folder cannot hold a lock file
// (missing or read-only: the command will fail there on its own). Throws Busy naming `what`.
std::string acquire(const fs::path& folder, const std::string& what, WriterLock::Mode mode) {
    std::error_code ec;
    fs::path file = fs::weakly_canonical(fs::absolute(folder, ec), ec) / WriterLock::kFile;
    const std::string key = file.string();
    auto [it, fresh] = entries().try_emplace(key);
    Entry& e = it->second;
    if (fresh) {
        e.fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0644);
        if (e.fd < 0) {
            entries().erase(it);
            return {};
        }
    }
    ++e.count;
    std::string holder;
    if (!e.locked && e.count > e.paused && !lockEntry(e, mode, holder)) {
        release(key);
        throw Busy("Dane są zajęte", what + " zmienia teraz " + holder +
                                         ". Poczekaj, aż skończy, i spróbuj ponownie.");
    }
    return key;
}

}  // namespace

WriterLock::WriterLock(const Session& s, Mode mode) {
    const fs::path root = s.katalog();
    std::string key = acquire(root, "Pliki wspólne folderu danych " + root.string(), mode);
    if (!key.empty()) held_.push_back(key);
    // A payer name that would lead out of the data folder locks nothing more: every path built
    // from it is refused (Error 52) before anything opens, and the payer can still be changed.
    if (s.SkrotPlatnika.empty() || !badPathPart(s.SkrotPlatnika).empty()) return;
    try {
        key = acquire(s.payerFolder(), "Dane płatnika " + s.SkrotPlatnika, mode);
        if (!key.empty()) held_.push_back(key);
    } catch (...) {
        for (const std::string& k : held_) release(k);
        throw;
    }
}

WriterLock::~WriterLock() {
    for (auto it = held_.rbegin(); it != held_.rend(); ++it) release(*it);
}

WriterLock::Pause::Pause() {
    for (auto& [key, e] : entries()) {
        saved_.emplace_back(key, e.paused);
        e.paused = e.count;
        if (e.locked) {
            ::flock(e.fd, LOCK_UN);
            e.locked = false;
        }
    }
}

WriterLock::Pause::~Pause() {
    for (const auto& [key, paused] : saved_) {
        auto it = entries().find(key);
        if (it == entries().end()) continue;
        Entry& e = it->second;
        e.paused = paused;
        std::string holder;
        if (!e.locked && e.count > e.paused) lockEntry(e, WriterLock::Mode::Wait, holder);
    }
}

}  // namespace core
