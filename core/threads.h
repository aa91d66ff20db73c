// How many threads there are to be, as the process is.
#pragma once

namespace qvx {

// Whether the caller is one of the threads of an OpenMP region of the program's own.
bool isInsideOpenMP();

}  // namespace qvx
