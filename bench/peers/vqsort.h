// Highway's sort as packaged. It chooses its instructions itself; here none above the level of the variant that is measured.
#pragma once

#include <hwy/contrib/sort/vqsort.h>

namespace vqsort {

const hwy::Sorter& sorter();

inline constexpr auto ascend = [](auto* x, int n) { sorter()(x, static_cast<size_t>(n), hwy::SortAscending()); };

}  // namespace vqsort
