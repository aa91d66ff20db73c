// The way every example ends: with a line on stderr that says what went wrong, and status 1.
#pragma once

#include <cstdio>
#include <exception>

inline int runProgram(const char* name, int (*run)(int, char**), int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", name, error.what());
    return 1;
  }
}
