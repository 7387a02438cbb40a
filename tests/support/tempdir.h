// A fresh folder for one test, removed afterwards; files are written in CP1250 with CR LF.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

namespace testing_support {

class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& s) const { return path_ / s; }

private:
    std::filesystem::path path_;
};

// Writes `lines` (UTF-8) as a CP1250 file, each line ended by CR LF.
void writeLines(const std::filesystem::path& file, const std::vector<std::string>& lines);
// The raw bytes of a file.
std::string readBytes(const std::filesystem::path& file);
// The lines of a CP1250 file, UTF-8, without their ends.
std::vector<std::string> readLines(const std::filesystem::path& file);
// Copies a folder tree (the demo data) into `to`.
void copyTree(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace testing_support
