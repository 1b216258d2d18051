#include <iostream>
#include <string>
#include <vector>

#include "cli/kqx.h"

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  const int status = kqx::RunKqx(args, std::cout, std::cerr);
  std::cout.flush();
  return status;
}
