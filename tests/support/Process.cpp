// A child process with its three streams on files, which no amount of output can block.
#include "Process.hpp"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace ordwise::test {

namespace {

// A file without a name that is gone with the test.
class Scratch {
public:
    Scratch() : file_(std::tmpfile()) {
        if (file_ == nullptr) throw std::runtime_error("no temporary file");
    }
    ~Scratch() { std::fclose(file_); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    void write(const std::string& text) {
        std::fwrite(text.data(), 1, text.size(), file_);
        std::fflush(file_);
        std::rewind(file_);
    }
    [[nodiscard]] std::string read() {
        std::rewind(file_);
        std::string text;
        char buffer[65536];
        for (std::size_t n = 0; (n = std::fread(buffer, 1, sizeof buffer, file_)) > 0;) text.append(buffer, n);
        return text;
    }
    [[nodiscard]] int descriptor() const { return fileno(file_); }

private:
    std::FILE* file_;
};

double milliseconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

[[noreturn]] void become(const std::vector<std::string>& arguments, int in, int out, int err) {
    dup2(in, STDIN_FILENO);
    dup2(out, STDOUT_FILENO);
    dup2(err, STDERR_FILENO);
    std::vector<char*> argv;
    for (const auto& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    execv(argv.front(), argv.data());
    _exit(127);
}

}  // namespace

Outcome run(const std::vector<std::string>& arguments, const std::string& input) {
    Scratch in;
    Scratch out;
    Scratch err;
    in.write(input);
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("no process");
    if (child == 0) become(arguments, in.descriptor(), out.descriptor(), err.descriptor());
    int status = 0;
    rusage used{};
    wait4(child, &status, 0, &used);
    Outcome outcome;
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    outcome.out = out.read();
    outcome.err = err.read();
    outcome.residentKilobytes = used.ru_maxrss;
    outcome.processorMilliseconds = milliseconds(used.ru_utime) + milliseconds(used.ru_stime);
    return outcome;
}

}  // namespace ordwise::test
