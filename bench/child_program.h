#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

extern char** environ;

namespace kestra {

// A program that answers a line with a line, through pipes. It ends with its input.
class ChildProgram {
 public:
  explicit ChildProgram(const std::vector<std::string>& words) {
    std::array<int, 2> in{};
    std::array<int, 2> out{};
    if (::pipe2(in.data(), O_CLOEXEC) != 0 || ::pipe2(out.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    process_ = start(words, in[0], out[1]);
    ::close(in[0]);
    ::close(out[1]);
    in_ = ::fdopen(in[1], "w");
    out_ = ::fdopen(out[0], "r");
  }
  ~ChildProgram() {
    std::fclose(in_);
    std::fclose(out_);
    ::waitpid(process_, nullptr, 0);
    std::free(line_);
  }
  ChildProgram(const ChildProgram&) = delete;
  ChildProgram& operator=(const ChildProgram&) = delete;

  // Sends a line, its line feed included, and waits for the answer; its length in bytes, -1 when there is none.
  long ask(const std::string& line) {
    std::fwrite(line.data(), 1, line.size(), in_);
    std::fflush(in_);
    return ::getline(&line_, &room_, out_);
  }

  // The answer to a line, without its line end; empty when there is none.
  std::string answerTo(const std::string& line) {
    const long length = ask(line);
    std::string answer(line_ != nullptr && length > 0 ? line_ : "");
    while (answer.ends_with('\n')) answer.pop_back();
    return answer;
  }

  // Runs a program to its end; its exit code.
  static int run(const std::vector<std::string>& words) {
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    int status = 0;
    ::waitpid(start(words, nothing, nothing), &status, 0);
    ::close(nothing);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  static pid_t start(const std::vector<std::string>& words, int in, int out) {
    std::vector<char*> arguments;
    for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, in, STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, out, STDOUT_FILENO);
    pid_t process = 0;
    const int fault = ::posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (fault != 0) throw std::runtime_error("cannot start " + words[0]);
    return process;
  }

  pid_t process_ = 0;
  FILE* in_ = nullptr;
  FILE* out_ = nullptr;
  char* line_ = nullptr;
  std::size_t room_ = 0;
};

}  // namespace kestra
