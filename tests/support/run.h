// Runs a program (the command line tool) in a folder and collects its output.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

namespace testing_support {

struct RunResult {
    int status = -1;
    std::string out, err;
};

RunResult run(const std::string& program, const std::vector<std::string>& args, const std::filesystem::path& cwd,
              const std::string& input = {});

}  // namespace testing_support
