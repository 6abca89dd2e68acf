// Writes the benchmark module to standard output: write_benchmark_module LINES > module.bas
#include <cstdlib>
#include <iostream>

#include "benchmark_module.h"

int main(int argc, char** argv) {
  const int lines = argc == 2 ? std::atoi(argv[1]) : 0;
  if (lines <= 0) {
    std::cerr << "usage: write_benchmark_module LINES\n";
    return 2;
  }
  std::cout << brimwork::BenchmarkModule(lines);
  return std::cout.flush() ? 0 : 1;
}
