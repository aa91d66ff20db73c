// Highway's sort as it is packaged, which chooses its instructions itself: no better ones than the variant's that is measured.
#pragma once

#include <hwy/contrib/sort/vqsort.h>

namespace vqsort {

const hwy::Sorter& sorter();

inline constexpr auto ascend = [](auto* x, int n) { sorter()(x, static_cast<size_t>(n), hwy::SortAscending()); };

}  // namespace vqsort
