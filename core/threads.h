// What the process says about threads.
#pragma once

namespace qvx {

// Whether the caller is one of the threads of an OpenMP region of the program's own.
bool isInsideOpenMP();

}  // namespace qvx
