// Where a record that changes the rate parts from a single-rate one. There are no such records yet: nothing builds them.
#pragma once

#include "fir/state.h"

namespace qvx::fir {

template <class S> bool isMultiRate(const S& state) { return state.magic == S::kMultiRate; }

// The kernels of multi-rate records, by the record's choice. A record that names none of them is refused.
template <class S> QvxStatus filterMultiRate(const S&) { return qvxStatContextMismatch; }

// Their taps are laid out by phases, their delay line is in the samples' own type.
template <class S> QvxStatus setTapsMultiRate(const S&) { return qvxStatContextMismatch; }
template <class S> QvxStatus delayLineMultiRate(const S&) { return qvxStatContextMismatch; }

}  // namespace qvx::fir
