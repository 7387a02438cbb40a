#include "core/instance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace core {

InstanceLock::InstanceLock(const std::filesystem::path& folder) {
    std::filesystem::path file = folder / ".pensja.lock";
    int fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) return;  // a folder we cannot write in cannot hold a lock: let the program run
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        busy_ = true;
        ::close(fd);
        return;
    }
    fd_ = fd;
}

InstanceLock::~InstanceLock() {
    if (fd_ >= 0) ::close(fd_);
}

}  // namespace core
