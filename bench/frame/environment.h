// What a measurement depends on: the machine, the variant, the compiler, the versions of the peers.
#pragma once

#include "frame/measurement.h"

namespace bench {

Context environment();

}  // namespace bench
