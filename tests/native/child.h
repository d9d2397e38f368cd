#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <thread>

// What the tests of this folder do with processes and files of their own, without the code under test.
namespace kestra {

// Runs `body` in a copy of this process and gives its exit code; -1 when a signal ended it.
inline int exitCodeOfChild(const std::function<int()>& body) {
  const pid_t process = ::fork();
  if (process == 0) ::_exit(body());
  int status = 0;
  ::waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Waits until `holds`, at most ten seconds; whether it does then.
inline bool eventually(const std::function<bool()>& holds) {
  for (int i = 0; i < 1000; ++i) {
    if (holds()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return holds();
}

inline std::string fileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

inline void writeText(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

// Whether the process is there and no mere zombie.
inline bool runs(const std::string& process) {
  const std::string state = fileText("/proc/" + process + "/stat");
  const std::size_t name = state.rfind(") ");
  return name != std::string::npos && state[name + 2] != 'Z' && state[name + 2] != 'X';
}

}  // namespace kestra
