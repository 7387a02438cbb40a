#include "core/seqfile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
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
        std::size_t close = text_.find('"', pos_ + 1);
        std::size_t lineEnd = text_.find_first_of("\r\n", pos_ + 1);
        if (close == std::string::npos || (lineEnd != std::string::npos && lineEnd < close)) {
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

void commitBytes(const fs::path& target, const std::string& bytes, const std::string& tempName) {
    fs::path folder = target.parent_path();
    if (folder.empty()) folder = ".";
    std::error_code ec;
    if (!fs::is_directory(folder, ec))
        throw Error(err::PathNotFound, target.string(), "brak folderu " + folder.string());
    fs::path temp = folder / (tempName.empty() ? target.filename().string() + "~" : tempName);
    int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
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
