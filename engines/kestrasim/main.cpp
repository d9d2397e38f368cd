#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "kestrasim/program.h"
#include "platform/native/posix_file_system.h"

int main(int argc, char** argv) {
  try {
    kestra::PosixFileSystem files;
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    return kestra::runProgram(arguments, files, std::cout, std::cerr);
  } catch (const std::exception& fault) {
    std::cerr << "KestraSim: " << fault.what() << '\n';
    return 1;
  }
}
