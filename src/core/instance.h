// One running copy of the program per working folder.
#pragma once
#include <filesystem>

namespace core {

class InstanceLock {
public:
    // Tries to take the lock file in `folder`. otherRunning() is true only when another
    // process holds it (a folder that cannot be written lets the program run).
    explicit InstanceLock(const std::filesystem::path& folder);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;
    bool otherRunning() const { return busy_; }

private:
    int fd_ = -1;
    bool busy_ = false;
};

}  // namespace core
