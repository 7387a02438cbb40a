#include "core/seqfile.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <random>
#include <utility>

#include "core/commitstream.h"
#include "core/error.h"
#include "core/text.h"

namespace fs = std::filesystem;

namespace core {

namespace {

constexpr std::size_t kPart = 1 << 16;  // what a reader reads and a writer passes on at a time

// Opens a file for reading: Error 53 when it is missing, 76 when its folder is, 75 when it
// cannot be read.
int openToRead(const fs::path& path) {
    std::error_code ec;
    if (!fs::exists(path, ec)) {
        if (!path.parent_path().empty() && !fs::exists(path.parent_path(), ec))
            throw Error(err::PathNotFound, path.string(), "brak folderu " + path.parent_path().string());
        throw Error(err::FileNotFound, path.string(), "brak pliku " + path.string());
    }
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) throw Error(err::PathFileAccess, path.string(), "nie można odczytać pliku " + path.string());
    return fd;
}

// Appends up to `n` bytes of the file to `out`: how many, 0 at its end.
std::size_t readPart(int fd, std::string& out, std::size_t n, const std::string& path) {
    const std::size_t at = out.size();
    out.resize(at + n);
    for (;;) {
        const ssize_t r = ::read(fd, out.data() + at, n);
        if (r >= 0) {
            out.resize(at + static_cast<std::size_t>(r));
            return static_cast<std::size_t>(r);
        }
        if (errno != EINTR) {
            out.resize(at);
            throw Error(err::PathFileAccess, path, "błąd odczytu pliku " + path);
        }
    }
}

}  // namespace

std::string readFileText(const fs::path& path) {
    const int fd = openToRead(path);
    std::string bytes;
    try {
        struct stat st{};
        const std::size_t size = ::fstat(fd, &st) == 0 && st.st_size > 0 ? static_cast<std::size_t>(st.st_size) : 0;
        bytes.reserve(size + 1);
        while (readPart(fd, bytes, std::max(kPart, bytes.capacity() - bytes.size()), path.string()) > 0) {
        }
    } catch (...) {
        ::close(fd);
        throw;
    }
    ::close(fd);
    return fromCp1250(bytes);
}

SeqReader::SeqReader(const fs::path& path)
    : fd_(openToRead(path)), cp1250_(true), name_(path.filename().string()), path_(path.string()) {
    fill();
}

SeqReader::SeqReader(SeqReader&& o) noexcept
    : data_(std::move(o.data_)), pos_(o.pos_), lineEnd_(o.lineEnd_), fd_(std::exchange(o.fd_, -1)),
      cp1250_(o.cp1250_), items_(o.items_), name_(std::move(o.name_)), path_(std::move(o.path_)) {}

SeqReader& SeqReader::operator=(SeqReader&& o) noexcept {
    if (this != &o) {
        if (fd_ >= 0) ::close(fd_);
        data_ = std::move(o.data_);
        pos_ = o.pos_;
        lineEnd_ = o.lineEnd_;
        fd_ = std::exchange(o.fd_, -1);
        cp1250_ = o.cp1250_;
        items_ = o.items_;
        name_ = std::move(o.name_);
        path_ = std::move(o.path_);
    }
    return *this;
}

SeqReader::~SeqReader() {
    if (fd_ >= 0) ::close(fd_);
}

SeqReader SeqReader::fromText(std::string text, std::string name) {
    SeqReader r;
    r.data_ = std::move(text);
    r.name_ = std::move(name);
    return r;
}

// The next part of the file after what is left of the last one; the file is closed at its end.
void SeqReader::fill() {
    if (fd_ < 0) return;
    data_.erase(0, pos_);
    lineEnd_ = lineEnd_ != std::string::npos && lineEnd_ >= pos_ ? lineEnd_ - pos_ : std::string::npos;
    pos_ = 0;
    std::size_t got = 0;
    try {
        got = readPart(fd_, data_, kPart, path_);
    } catch (...) {
        ::close(fd_);
        fd_ = -1;
        throw;
    }
    if (got == 0) {
        ::close(fd_);
        fd_ = -1;
    }
}

// Makes the line at pos_ whole in memory: its '\n' is read, or the file is.
void SeqReader::wholeLine() {
    if (lineEnd_ != std::string::npos && lineEnd_ >= pos_) return;
    std::size_t from = pos_;
    for (;;) {
        const void* nl = std::memchr(data_.data() + from, '\n', data_.size() - from);
        if (nl) {
            lineEnd_ = static_cast<std::size_t>(static_cast<const char*>(nl) - data_.data());
            return;
        }
        if (fd_ < 0) {
            lineEnd_ = data_.size();
            return;
        }
        const std::size_t searched = data_.size() - pos_;
        fill();
        from = pos_ + searched;
    }
}

// After an item or a line: the next part is read once this one is taken, so that eof() knows.
void SeqReader::next() {
    if (pos_ >= data_.size()) fill();
}

void SeqReader::append(std::string& out, std::size_t from, std::size_t to) const {
    if (cp1250_)
        appendFromCp1250(out, std::string_view(data_).substr(from, to - from));
    else
        out.append(data_, from, to - from);
}

void SeqReader::skipLineEnd() {
    if (pos_ < data_.size() && data_[pos_] == '\r') ++pos_;
    if (pos_ < data_.size() && data_[pos_] == '\n') ++pos_;
}

Item::Kind SeqReader::itemInto(std::string& out) {
    if (eof())
        throw Error(err::InputPastEnd, name_ + ", pozycja " + std::to_string(items_ + 1),
                    "plik " + name_ + " skończył się w środku rekordu");
    ++items_;
    wholeLine();
    const std::size_t n = lineEnd_ < data_.size() ? lineEnd_ + 1 : data_.size();  // the line's end, '\n' included
    const char* d = data_.data();
    while (pos_ < n && (d[pos_] == ' ' || d[pos_] == '\t')) ++pos_;
    Item::Kind kind;
    if (pos_ < n && d[pos_] == '"') {
        const void* q = std::memchr(d + pos_ + 1, '"', n - pos_ - 1);
        const std::size_t close = q ? static_cast<std::size_t>(static_cast<const char*>(q) - d) : std::string::npos;
        const std::size_t upTo = q ? close : n;
        std::size_t lineEnd = pos_ + 1;
        while (lineEnd < upTo && d[lineEnd] != '\r' && d[lineEnd] != '\n') ++lineEnd;
        if (!q || lineEnd < upTo) {
            // An unclosed quote runs to the end of the line.
            append(out, pos_ + 1, lineEnd);
            pos_ = lineEnd;
        } else {
            append(out, pos_ + 1, close);
            pos_ = close + 1;
        }
        kind = Item::Quoted;
        // Whatever stands between the closing quote and the separator is passed over.
        while (pos_ < n && d[pos_] != ',' && d[pos_] != '\r' && d[pos_] != '\n') ++pos_;
    } else {
        const std::size_t start = pos_;
        while (pos_ < n && d[pos_] != ',' && d[pos_] != '\r' && d[pos_] != '\n') ++pos_;
        std::size_t end = pos_;
        while (end > start && d[end - 1] == ' ') --end;
        append(out, start, end);
        kind = end > start ? Item::Bare : Item::Empty;
    }
    if (pos_ < data_.size() && d[pos_] == ',')
        ++pos_;
    else
        skipLineEnd();
    next();
    return kind;
}

Item SeqReader::item() {
    Item it;
    it.kind = itemInto(it.text);
    return it;
}

void SeqReader::lineInto(std::string& out) {
    if (eof())
        throw Error(err::InputPastEnd, name_ + ", pozycja " + std::to_string(items_ + 1),
                    "plik " + name_ + " skończył się w środku rekordu");
    ++items_;
    wholeLine();
    std::size_t end = pos_;
    const std::size_t n = std::min(lineEnd_, data_.size());
    while (end < n && data_[end] != '\r') ++end;
    append(out, pos_, end);
    pos_ = end;
    skipLineEnd();
    next();
}

std::string SeqReader::line() {
    std::string s;
    lineInto(s);
    return s;
}

// --- Writing ----------------------------------------------------------------------------------

// The file a writer passes its parts to: a fresh temporary file beside the target, renamed over
// it by commit(); dropped without commit() it leaves the target as it was.
struct SeqWriter::File {
    fs::path target;
    CommitStream out;
    explicit File(const fs::path& t) : target(t), out(t) {}
};

SeqWriter::SeqWriter() = default;

SeqWriter SeqWriter::toFile(const fs::path& target, const std::string& /*tempName*/) {
    SeqWriter w;
    w.file_ = std::make_unique<File>(target);
    return w;
}

SeqWriter::SeqWriter(SeqWriter&& o) noexcept
    : buf_(std::move(o.buf_)), spilled_(o.spilled_), file_(std::move(o.file_)) {}

SeqWriter& SeqWriter::operator=(SeqWriter&& o) noexcept {
    if (this != &o) {
        buf_ = std::move(o.buf_);
        spilled_ = o.spilled_;
        file_ = std::move(o.file_);
    }
    return *this;
}

SeqWriter::~SeqWriter() = default;

// A writer into a file passes on what it holds once it holds a part; every write is whole in
// it, so no character is ever cut.
void SeqWriter::spill(bool all) {
    if (!file_ || buf_.empty() || (!all && buf_.size() < kPart)) return;
    file_->out.write(toCp1250(buf_, file_->target.string()));
    buf_.clear();
    spilled_ = true;
}

void SeqWriter::put(Item::Kind kind, std::string_view text, bool first) {
    if (!first) buf_ += ',';
    if (kind == Item::Quoted) {
        buf_ += '"';
        buf_.append(text);
        buf_ += '"';
    } else if (kind == Item::Bare) {
        buf_.append(text);
    }
}

void SeqWriter::endWrite() {
    buf_ += "\r\n";
    spill(false);
}

void SeqWriter::write(const std::vector<Item>& items) {
    for (std::size_t i = 0; i < items.size(); ++i)
        if (items[i].kind == Item::Quoted && items[i].text.find('"') != std::string::npos)
            throw TextRefused("pozycja " + std::to_string(i + 1), "pozycja " + std::to_string(i + 1), 0);
    for (std::size_t i = 0; i < items.size(); ++i) put(items[i].kind, items[i].text, i == 0);
    endWrite();
}

void SeqWriter::write(const Item& item) {
    if (item.kind == Item::Quoted && item.text.find('"') != std::string::npos)
        throw TextRefused("pozycja 1", "pozycja 1", 0);
    put(item.kind, item.text, true);
    endWrite();
}

void SeqWriter::print(std::string_view line) {
    buf_.append(line);
    endWrite();
}

void SeqWriter::commit() {
    if (!file_) return;
    spill(true);
    file_->out.commit();
    file_.reset();
}

void commitFile(const fs::path& target, const std::string& utf8, const std::string& tempName) {
    commitBytes(target, toCp1250(utf8, target.string()), tempName);
}

void commitBytes(const fs::path& target, const std::string& bytes, const std::string& /*tempName*/) {
    CommitStream out(target);
    out.write(bytes);
    out.commit();
}

}  // namespace core
