// The one safe rewrite of a file, whole (commitBytes) or piece by piece (a ledger, a long print
// as text or PDF): the bytes go to a fresh temporary file beside the target, named
// ".~<target>.<process>.<random>" (created exclusively, never following a link; a leftover of
// a killed run is removed by the next rewrite of the target), and only commit() syncs it and
// renames it over the target. Dropped without commit(), it leaves the target as it was.
#pragma once
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace core {

class CommitStream {
public:
    // Error 76 when the target's folder is missing, 75 when no file can be made there.
    explicit CommitStream(const std::filesystem::path& target);
    ~CommitStream();
    CommitStream(const CommitStream&) = delete;
    CommitStream& operator=(const CommitStream&) = delete;

    void write(std::string_view bytes);
    // Bytes written so far.
    std::uint64_t size() const { return size_; }
    // Syncs the file and renames it over the target.
    void commit();

private:
    void flush();
    void put(std::string_view bytes);
    [[noreturn]] void fail(const char* what);
    std::filesystem::path target_, folder_, temp_;
    int fd_ = -1;
    std::string buf_;
    std::uint64_t size_ = 0;
};

}  // namespace core
