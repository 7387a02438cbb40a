#include "core/seqfile.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <random>
#include <sstream>

#include "core/error.h"
#include "core/text.h"

namespace fs = std::filesystem;

namespace core {

std::string readFileText(const fs::path& path) {
    std::error_code ec;
    if (!fs::exists(path, ec)) {
        if (!path.parent_path().empty() && !fs::exists(path.parent_path(), ec))
            throw Error(err::PathNotFound, path.string(), "brak folderu " + path.parent_path().string());
        throw Error(err::FileNotFound, path.string(), "brak pliku " + path.string());
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) throw Error(err::PathFileAccess, path.string(), "nie można odczytać pliku " + path.string());
    std::ostringstream ss;
    ss << in.rdbuf();
    if (in.bad()) throw Error(err::PathFileAccess, path.string(), "błąd odczytu pliku " + path.string());
    return fromCp1250(ss.str());
}

SeqReader::SeqReader(const fs::path& path) : text_(readFileText(path)), name_(path.filename().string()) {}

SeqReader SeqReader::fromText(std::string text, std::string name) {
    SeqReader r;
    r.text_ = std::move(text);
    r.name_ = std::move(name);
    return r;
}

void SeqReader::skipLineEnd() {
    if (pos_ < text_.size() && text_[pos_] == '\r') ++pos_;
    if (pos_ < text_.size() && text_[pos_] == '\n') ++pos_;
}

Item SeqReader::item() {
    if (eof())
        throw Error(err::InputPastEnd, name_ + ", pozycja " + std::to_string(items_ + 1),
                    "plik " + name_ + " skończył się w środku rekordu");
    ++items_;
    const std::size_t n = text_.size();
    while (pos_ < n && (text_[pos_] == ' ' || text_[pos_] == '\t')) ++pos_;
    Item it;
    if (pos_ < n && text_[pos_] == '"') {
        // The line end is looked for only up to the closing quote: a long line of many items is
        // read in one pass.
        std::size_t close = text_.find('"', pos_ + 1);
        const std::size_t upTo = close == std::string::npos ? n : close;
        std::size_t lineEnd = std::string_view(text_).substr(0, upTo).find_first_of("\r\n", pos_ + 1);
        if (close == std::string::npos || lineEnd != std::string::npos) {
            // An unclosed quote runs to the end of the line.
            std::size_t end = lineEnd == std::string::npos ? n : lineEnd;
            it = Item::quoted(text_.substr(pos_ + 1, end - pos_ - 1));
            pos_ = end;
        } else {
            it = Item::quoted(text_.substr(pos_ + 1, close - pos_ - 1));
            pos_ = close + 1;
        }
        // Whatever stands between the closing quote and the separator is passed over.
        while (pos_ < n && text_[pos_] != ',' && text_[pos_] != '\r' && text_[pos_] != '\n') ++pos_;
    } else {
        std::size_t start = pos_;
        while (pos_ < n && text_[pos_] != ',' && text_[pos_] != '\r' && text_[pos_] != '\n') ++pos_;
        it = Item::bare(RTrim(std::string_view(text_).substr(start, pos_ - start)));
    }
    if (pos_ < n && text_[pos_] == ',')
        ++pos_;
    else
        skipLineEnd();
    return it;
}

std::string SeqReader::line() {
    if (eof())
        throw Error(err::InputPastEnd, name_ + ", pozycja " + std::to_string(items_ + 1),
                    "plik " + name_ + " skończył się w środku rekordu");
    ++items_;
    std::size_t end = text_.find_first_of("\r\n", pos_);
    if (end == std::string::npos) end = text_.size();
    std::string s = text_.substr(pos_, end - pos_);
    pos_ = end;
    skipLineEnd();
    return s;
}

void SeqWriter::write(const std::vector<Item>& items) {
    for (std::size_t i = 0; i < items.size(); ++i)
        if (items[i].kind == Item::Quoted && items[i].text.find('"') != std::string::npos)
            throw TextRefused("pozycja " + std::to_string(i + 1), "pozycja " + std::to_string(i + 1), 0);
    bool first = true;
    for (const Item& it : items) {
        if (!first) buf_ += ',';
        first = false;
        if (it.kind == Item::Quoted) {
            buf_ += '"';
            buf_ += it.text;
            buf_ += '"';
        } else if (it.kind == Item::Bare) {
            buf_ += it.text;
        }
    }
    buf_ += "\r\n";
}

void SeqWriter::print(std::string_view line) {
    buf_.append(line);
    buf_ += "\r\n";
}

void commitFile(const fs::path& target, const std::string& utf8, const std::string& tempName) {
    commitBytes(target, toCp1250(utf8, target.string()), tempName);
}

// A temporary file of a rewrite is named ".~<target>.<process>.<random>": never a name the data
// can hold (a list or a payer), never one that exists (it is created exclusively, without
// following a link), and the process in its name tells a leftover of a killed run from the
// file of a run still going on.
static std::string tempPrefix(const fs::path& target) { return ".~" + target.filename().string() + "."; }

static bool processAlive(long pid) { return pid > 0 && (::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM); }

// Removes the temporary files that killed rewrites of `target` left behind. Only our own names
// are looked at; a link is removed as a link, never followed.
static void removeLeftovers(const fs::path& folder, const fs::path& target) {
    const std::string prefix = tempPrefix(target);
    std::error_code ec;
    for (const auto& e : fs::directory_iterator(folder, ec)) {
        const std::string name = e.path().filename().string();
        if (name.rfind(prefix, 0) != 0) continue;
        const std::string rest = name.substr(prefix.size());
        const std::size_t dot = rest.find('.');
        if (dot == 0 || dot == std::string::npos || rest.find_first_not_of("0123456789") != dot) continue;
        if (processAlive(std::strtol(rest.c_str(), nullptr, 10))) continue;
        std::error_code rm;
        fs::remove(e.path(), rm);
    }
}

// Creates a fresh temporary file beside `target`; its descriptor, its name in `temp`.
static int createTemp(const fs::path& folder, const fs::path& target, fs::path& temp) {
    static const char digits[] = "0123456789abcdefghijklmnopqrstuvwxyz";
    std::random_device rd;
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::string name = tempPrefix(target) + std::to_string(::getpid()) + ".";
        for (int i = 0; i < 8; ++i) name += digits[rd() % 36];
        temp = folder / name;
        int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
        if (fd >= 0 || errno != EEXIST) return fd;
    }
    errno = EEXIST;
    return -1;
}

void commitBytes(const fs::path& target, const std::string& bytes, const std::string& /*tempName*/) {
    fs::path folder = target.parent_path();
    if (folder.empty()) folder = ".";
    std::error_code ec;
    if (!fs::is_directory(folder, ec))
        throw Error(err::PathNotFound, target.string(), "brak folderu " + folder.string());
    removeLeftovers(folder, target);
    fs::path temp;
    int fd = createTemp(folder, target, temp);
    if (fd < 0)
        throw Error(err::PathFileAccess, target.string(),
                    "nie można zapisać w folderze " + folder.string() + " (" + std::strerror(errno) + ")");
    auto fail = [&](const char* what) {
        int e = errno;
        ::close(fd);
        fs::remove(temp, ec);
        throw Error(err::PathFileAccess, target.string(),
                    std::string(what) + " " + temp.string() + " (" + std::strerror(e) + ")");
    };
    std::size_t done = 0;
    while (done < bytes.size()) {
        ssize_t w = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (w < 0) {
            if (errno == EINTR) continue;
            fail("błąd zapisu pliku");
        }
        done += static_cast<std::size_t>(w);
    }
    if (::fsync(fd) != 0) fail("błąd zapisu pliku");
    if (::close(fd) != 0) {
        int e = errno;
        fs::remove(temp, ec);
        throw Error(err::PathFileAccess, target.string(), "błąd zapisu pliku (" + std::string(std::strerror(e)) + ")");
    }
    if (::rename(temp.c_str(), target.c_str()) != 0) {
        int e = errno;
        fs::remove(temp, ec);
        throw Error(err::PathFileAccess, target.string(),
                    "nie można zastąpić pliku " + target.string() + " (" + std::strerror(e) + ")");
    }
    int dfd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dfd >= 0) {
        ::fsync(dfd);
        ::close(dfd);
    }
}

}  // namespace core
