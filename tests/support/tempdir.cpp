#include "support/tempdir.h"

#include <unistd.h>

#include <fstream>
#include <random>
#include <sstream>
#include <vector>

#include "core/text.h"

namespace fs = std::filesystem;

namespace testing_support {

TempDir::TempDir() {
    std::random_device rd;
    fs::path base = fs::temp_directory_path();
    for (;;) {
        path_ = base / ("pensja-test-" + std::to_string(::getpid()) + "-" + std::to_string(rd()));
        if (fs::create_directory(path_)) break;
    }
}

TempDir::~TempDir() {
    std::error_code ec;
    fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ec);
    fs::remove_all(path_, ec);
}

void writeLines(const fs::path& file, const std::vector<std::string>& lines) {
    std::string s;
    for (const auto& l : lines) s += l + "\r\n";
    std::ofstream out(file, std::ios::binary);
    out << core::toCp1250(s);
}

std::string readBytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

std::vector<std::string> readLines(const fs::path& file) {
    std::string s = core::fromCp1250(readBytes(file));
    std::vector<std::string> out;
    std::size_t i = 0;
    while (i < s.size()) {
        std::size_t e = s.find("\r\n", i);
        if (e == std::string::npos) {
            out.push_back(s.substr(i));
            break;
        }
        out.push_back(s.substr(i, e - i));
        i = e + 2;
    }
    return out;
}

void copyTree(const fs::path& from, const fs::path& to) {
    fs::create_directories(to);
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

}  // namespace testing_support
