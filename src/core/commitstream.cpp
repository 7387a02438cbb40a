#include "core/commitstream.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include "core/error.h"

namespace fs = std::filesystem;

namespace core {

namespace {

constexpr std::size_t kBufor = 1 << 16;

// ".~<target>.<process>.<random>": never a name the data can hold (a list or a payer); the
// process in it tells a leftover of a killed run from the file of a run still going on.
std::string tempPrefix(const fs::path& target) { return ".~" + target.filename().string() + "."; }

// Removes what killed writes of `target` left behind (their process is gone).
void removeLeftovers(const fs::path& folder, const fs::path& target) {
    const std::string prefix = tempPrefix(target);
    std::error_code ec;
    for (const auto& e : fs::directory_iterator(folder, ec)) {
        const std::string name = e.path().filename().string();
        if (name.rfind(prefix, 0) != 0) continue;
        const std::string rest = name.substr(prefix.size());
        const std::size_t dot = rest.find('.');
        if (dot == 0 || dot == std::string::npos || rest.find_first_not_of("0123456789") != dot) continue;
        const long pid = std::strtol(rest.c_str(), nullptr, 10);
        if (pid > 0 && (::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM)) continue;
        std::error_code rm;
        fs::remove(e.path(), rm);
    }
}

int createTemp(const fs::path& folder, const fs::path& target, fs::path& temp) {
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

}  // namespace

CommitStream::CommitStream(const fs::path& target) : target_(target), folder_(target.parent_path()) {
    if (folder_.empty()) folder_ = ".";
    std::error_code ec;
    if (!fs::is_directory(folder_, ec))
        throw Error(err::PathNotFound, target.string(), "brak folderu " + folder_.string());
    removeLeftovers(folder_, target_);
    fd_ = createTemp(folder_, target_, temp_);
    if (fd_ < 0)
        throw Error(err::PathFileAccess, target.string(),
                    "nie można zapisać w folderze " + folder_.string() + " (" + std::strerror(errno) + ")");
    buf_.reserve(kBufor);
}

CommitStream::~CommitStream() {
    if (fd_ < 0) return;
    ::close(fd_);
    std::error_code ec;
    fs::remove(temp_, ec);
}

void CommitStream::fail(const char* what) {
    int e = errno;
    ::close(fd_);
    fd_ = -1;
    std::error_code ec;
    fs::remove(temp_, ec);
    throw Error(err::PathFileAccess, target_.string(), std::string(what) + " " + temp_.string() + " (" + std::strerror(e) + ")");
}

void CommitStream::write(std::string_view bytes) {
    size_ += bytes.size();
    if (buf_.size() + bytes.size() > kBufor) flush();
    if (bytes.size() >= kBufor) put(bytes);
    else buf_.append(bytes);
}

void CommitStream::flush() {
    put(buf_);
    buf_.clear();
}

void CommitStream::put(std::string_view bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        ssize_t w = ::write(fd_, bytes.data() + done, bytes.size() - done);
        if (w < 0) {
            if (errno == EINTR) continue;
            fail("błąd zapisu pliku");
        }
        done += static_cast<std::size_t>(w);
    }
}

void CommitStream::commit() {
    flush();
    if (::fsync(fd_) != 0) fail("błąd zapisu pliku");
    int fd = fd_;
    fd_ = -1;
    std::error_code ec;
    if (::close(fd) != 0) {
        int e = errno;
        fs::remove(temp_, ec);
        throw Error(err::PathFileAccess, target_.string(), "błąd zapisu pliku (" + std::string(std::strerror(e)) + ")");
    }
    if (::rename(temp_.c_str(), target_.c_str()) != 0) {
        int e = errno;
        fs::remove(temp_, ec);
        throw Error(err::PathFileAccess, target_.string(),
                    "nie można zastąpić pliku " + target_.string() + " (" + std::strerror(e) + ")");
    }
    int dfd = ::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dfd >= 0) {
        ::fsync(dfd);
        ::close(dfd);
    }
}

}  // namespace core
