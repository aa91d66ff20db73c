// Sorts of values.
#include "frame/check.h"
#include "sort/sort_keys.h"

using namespace qvx;

namespace {

template <Order kOrder, class T> QvxStatus sort(T* srcDst, int len) {
  const QvxStatus status = check(len, srcDst);
  if (status == qvxStatOk) sortKeys(asKeys(srcDst), elements(len), keyMap<T>(kOrder));
  return status;
}

// Equal keys are equal bits, so a stable sort has no other result.
template <Order kOrder, class T> QvxStatus sortStably(T* srcDst, T* workspace, int len) {
  const QvxStatus status = check(len, srcDst, workspace);
  if (status != qvxStatOk) return status;
  if constexpr (sizeof(T) == 1) sortKeys(asKeys(srcDst), elements(len), keyMap<T>(kOrder));
  else sortKeys(asKeys(srcDst), asKeys(workspace), elements(len), keyMap<T>(kOrder));
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsSortAscend_8u_I(Qvx8u* x, int len) { return sort<kUp>(x, len); }
QvxStatus qvxsSortAscend_16s_I(Qvx16s* x, int len) { return sort<kUp>(x, len); }
QvxStatus qvxsSortAscend_16u_I(Qvx16u* x, int len) { return sort<kUp>(x, len); }
QvxStatus qvxsSortAscend_32s_I(Qvx32s* x, int len) { return sort<kUp>(x, len); }
QvxStatus qvxsSortAscend_32f_I(Qvx32f* x, int len) { return sort<kUp>(x, len); }
QvxStatus qvxsSortAscend_64f_I(Qvx64f* x, int len) { return sort<kUp>(x, len); }
QvxStatus qvxsSortDescend_8u_I(Qvx8u* x, int len) { return sort<kDown>(x, len); }
QvxStatus qvxsSortDescend_16s_I(Qvx16s* x, int len) { return sort<kDown>(x, len); }
QvxStatus qvxsSortDescend_16u_I(Qvx16u* x, int len) { return sort<kDown>(x, len); }
QvxStatus qvxsSortDescend_32s_I(Qvx32s* x, int len) { return sort<kDown>(x, len); }
QvxStatus qvxsSortDescend_32f_I(Qvx32f* x, int len) { return sort<kDown>(x, len); }
QvxStatus qvxsSortDescend_64f_I(Qvx64f* x, int len) { return sort<kDown>(x, len); }

QvxStatus qvxsSortRadixAscend_8u_I(Qvx8u* x, Qvx8u* workspace, int len) { return sortStably<kUp>(x, workspace, len); }
QvxStatus qvxsSortRadixAscend_16s_I(Qvx16s* x, Qvx16s* workspace, int len) { return sortStably<kUp>(x, workspace, len); }
QvxStatus qvxsSortRadixAscend_16u_I(Qvx16u* x, Qvx16u* workspace, int len) { return sortStably<kUp>(x, workspace, len); }
QvxStatus qvxsSortRadixAscend_32s_I(Qvx32s* x, Qvx32s* workspace, int len) { return sortStably<kUp>(x, workspace, len); }
QvxStatus qvxsSortRadixAscend_32u_I(Qvx32u* x, Qvx32u* workspace, int len) { return sortStably<kUp>(x, workspace, len); }
QvxStatus qvxsSortRadixAscend_32f_I(Qvx32f* x, Qvx32f* workspace, int len) { return sortStably<kUp>(x, workspace, len); }
QvxStatus qvxsSortRadixAscend_64f_I(Qvx64f* x, Qvx64f* workspace, int len) { return sortStably<kUp>(x, workspace, len); }
QvxStatus qvxsSortRadixDescend_8u_I(Qvx8u* x, Qvx8u* workspace, int len) { return sortStably<kDown>(x, workspace, len); }
QvxStatus qvxsSortRadixDescend_16s_I(Qvx16s* x, Qvx16s* workspace, int len) { return sortStably<kDown>(x, workspace, len); }
QvxStatus qvxsSortRadixDescend_16u_I(Qvx16u* x, Qvx16u* workspace, int len) { return sortStably<kDown>(x, workspace, len); }
QvxStatus qvxsSortRadixDescend_32s_I(Qvx32s* x, Qvx32s* workspace, int len) { return sortStably<kDown>(x, workspace, len); }
QvxStatus qvxsSortRadixDescend_32u_I(Qvx32u* x, Qvx32u* workspace, int len) { return sortStably<kDown>(x, workspace, len); }
QvxStatus qvxsSortRadixDescend_32f_I(Qvx32f* x, Qvx32f* workspace, int len) { return sortStably<kDown>(x, workspace, len); }
QvxStatus qvxsSortRadixDescend_64f_I(Qvx64f* x, Qvx64f* workspace, int len) { return sortStably<kDown>(x, workspace, len); }
// clang-format on
