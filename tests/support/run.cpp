#include "support/run.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

namespace testing_support {

namespace {
std::string slurp(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}
}  // namespace

RunResult run(const std::string& program, const std::vector<std::string>& args, const std::filesystem::path& cwd,
              const std::string& input) {
    auto base = std::filesystem::temp_directory_path() / ("pensja-run-" + std::to_string(::getpid()));
    std::filesystem::path outPath = base.string() + ".out", errPath = base.string() + ".err",
                          inPath = base.string() + ".in";
    {
        std::ofstream in(inPath, std::ios::binary);
        in << input;
    }
    RunResult r;
    pid_t pid = ::fork();
    if (pid == 0) {
        if (::chdir(cwd.c_str()) != 0) _exit(127);
        int in = ::open(inPath.c_str(), O_RDONLY);
        int out = ::open(outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        int err = ::open(errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        ::dup2(in, 0);
        ::dup2(out, 1);
        ::dup2(err, 2);
        std::vector<char*> argv{const_cast<char*>(program.c_str())};
        for (const auto& a : args) argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        ::execv(program.c_str(), argv.data());
        _exit(127);
    }
    int st = 0;
    ::waitpid(pid, &st, 0);
    r.status = WIFEXITED(st) ? WEXITSTATUS(st) : -1;
    r.out = slurp(outPath);
    r.err = slurp(errPath);
    std::error_code ec;
    std::filesystem::remove(outPath, ec);
    std::filesystem::remove(errPath, ec);
    std::filesystem::remove(inPath, ec);
    return r;
}

}  // namespace testing_support
