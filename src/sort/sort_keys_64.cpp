// 64-bit keys.
#include "sort/sort_in_team.h"
#include "sort/sort_keys.h"

using namespace qvx;

void qvx::sortKeys(int64_t* x, size_t n, KeyMap<int64_t> map) { sortInPlace(x, n, map); }
void qvx::sortKeys(int64_t* x, int64_t* room, size_t n, KeyMap<int64_t> map) { sortWithRoom(x, room, n, map); }
