// dst = src2 - src1, dst = src - val and dst = val - src
#include "frame/past_caches.h"
#include "vector/sum.h"

using namespace qvx;

// clang-format off
QvxStatus qvxsSub_8u_Sfs(const Qvx8u* a, const Qvx8u* b, Qvx8u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsSub_8u_ISfs(const Qvx8u* a, Qvx8u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, d); }
QvxStatus qvxsSub_16s(const Qvx16s* a, const Qvx16s* b, Qvx16s* d, int len) { return map<Difference>(d, len, AsIs{}, a, b); }
QvxStatus qvxsSub_16s_I(const Qvx16s* a, Qvx16s* d, int len) { return map<Difference>(d, len, AsIs{}, a, d); }
QvxStatus qvxsSub_16s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx16s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsSub_16s_ISfs(const Qvx16s* a, Qvx16s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, d); }
QvxStatus qvxsSub_16u_Sfs(const Qvx16u* a, const Qvx16u* b, Qvx16u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsSub_16u_ISfs(const Qvx16u* a, Qvx16u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, d); }
QvxStatus qvxsSub_16sc_Sfs(const Qvx16sc* a, const Qvx16sc* b, Qvx16sc* d, int len, int sf) { return map<Difference>(d, LengthFirst{len}, Scaled{sf}, a, b); }
QvxStatus qvxsSub_16sc_ISfs(const Qvx16sc* a, Qvx16sc* d, int len, int sf) { return map<Difference>(d, LengthFirst{len}, Scaled{sf}, a, d); }
QvxStatus qvxsSub_16s32f(const Qvx16s* a, const Qvx16s* b, Qvx32f* d, int len) { return map<Difference>(d, len, AsIs{}, a, b); }
QvxStatus qvxsSub_32s_Sfs(const Qvx32s* a, const Qvx32s* b, Qvx32s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsSub_32s_ISfs(const Qvx32s* a, Qvx32s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, d); }
QvxStatus qvxsSub_32sc_Sfs(const Qvx32sc* a, const Qvx32sc* b, Qvx32sc* d, int len, int sf) { return map<Difference>(d, LengthFirst{len}, Scaled{sf}, a, b); }
QvxStatus qvxsSub_32sc_ISfs(const Qvx32sc* a, Qvx32sc* d, int len, int sf) { return map<Difference>(d, LengthFirst{len}, Scaled{sf}, a, d); }
QvxStatus qvxsSub_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* d, int len) { return map<Difference>(d, len, PastCaches{}, a, b); }
QvxStatus qvxsSub_32f_I(const Qvx32f* a, Qvx32f* d, int len) { return map<Difference>(d, len, AsIs{}, a, d); }
QvxStatus qvxsSub_32fc(const Qvx32fc* a, const Qvx32fc* b, Qvx32fc* d, int len) { return map<Difference>(d, LengthFirst{len}, PastCaches{}, a, b); }
QvxStatus qvxsSub_32fc_I(const Qvx32fc* a, Qvx32fc* d, int len) { return map<Difference>(d, LengthFirst{len}, AsIs{}, a, d); }
QvxStatus qvxsSub_64f(const Qvx64f* a, const Qvx64f* b, Qvx64f* d, int len) { return map<Difference>(d, len, PastCaches{}, a, b); }
QvxStatus qvxsSub_64f_I(const Qvx64f* a, Qvx64f* d, int len) { return map<Difference>(d, len, AsIs{}, a, d); }
QvxStatus qvxsSub_64fc(const Qvx64fc* a, const Qvx64fc* b, Qvx64fc* d, int len) { return map<Difference>(d, LengthFirst{len}, PastCaches{}, a, b); }
QvxStatus qvxsSub_64fc_I(const Qvx64fc* a, Qvx64fc* d, int len) { return map<Difference>(d, LengthFirst{len}, AsIs{}, a, d); }

// A float constant of 0 copies, as in the sums.
QvxStatus qvxsSubC_8u_Sfs(const Qvx8u* a, Qvx8u val, Qvx8u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, a); }
QvxStatus qvxsSubC_8u_ISfs(Qvx8u val, Qvx8u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, d); }
QvxStatus qvxsSubC_16s_I(Qvx16s val, Qvx16s* d, int len) { return map<Difference>(d, len, AsIs{}, Constant{val}, d); }
QvxStatus qvxsSubC_16s_Sfs(const Qvx16s* a, Qvx16s val, Qvx16s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, a); }
QvxStatus qvxsSubC_16s_ISfs(Qvx16s val, Qvx16s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, d); }
QvxStatus qvxsSubC_16u_Sfs(const Qvx16u* a, Qvx16u val, Qvx16u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, a); }
QvxStatus qvxsSubC_16u_ISfs(Qvx16u val, Qvx16u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, d); }
QvxStatus qvxsSubC_16sc_Sfs(const Qvx16sc* a, Qvx16sc val, Qvx16sc* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, a); }
QvxStatus qvxsSubC_16sc_ISfs(Qvx16sc val, Qvx16sc* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, d); }
QvxStatus qvxsSubC_32s_Sfs(const Qvx32s* a, Qvx32s val, Qvx32s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, a); }
QvxStatus qvxsSubC_32s_ISfs(Qvx32s val, Qvx32s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, d); }
QvxStatus qvxsSubC_32sc_Sfs(const Qvx32sc* a, Qvx32sc val, Qvx32sc* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, a); }
QvxStatus qvxsSubC_32sc_ISfs(Qvx32sc val, Qvx32sc* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, Constant{val}, d); }
QvxStatus qvxsSubC_32f(const Qvx32f* a, Qvx32f val, Qvx32f* d, int len) { return isZero(val) ? qvxsCopy_32f(a, d, len) : map<Difference>(d, len, PastCaches{}, Constant{val}, a); }
QvxStatus qvxsSubC_32f_I(Qvx32f val, Qvx32f* d, int len) { return isZero(val) ? check(len, d) : map<Difference>(d, len, AsIs{}, Constant{val}, d); }
QvxStatus qvxsSubC_32fc(const Qvx32fc* a, Qvx32fc val, Qvx32fc* d, int len) { return map<Difference>(d, len, PastCaches{}, Constant{val}, a); }
QvxStatus qvxsSubC_32fc_I(Qvx32fc val, Qvx32fc* d, int len) { return map<Difference>(d, len, AsIs{}, Constant{val}, d); }
QvxStatus qvxsSubC_64f(const Qvx64f* a, Qvx64f val, Qvx64f* d, int len) { return isZero(val) ? qvxsCopy_64f(a, d, len) : map<Difference>(d, len, PastCaches{}, Constant{val}, a); }
QvxStatus qvxsSubC_64f_I(Qvx64f val, Qvx64f* d, int len) { return isZero(val) ? check(len, d) : map<Difference>(d, len, AsIs{}, Constant{val}, d); }
QvxStatus qvxsSubC_64fc(const Qvx64fc* a, Qvx64fc val, Qvx64fc* d, int len) { return map<Difference>(d, len, PastCaches{}, Constant{val}, a); }
QvxStatus qvxsSubC_64fc_I(Qvx64fc val, Qvx64fc* d, int len) { return map<Difference>(d, len, AsIs{}, Constant{val}, d); }

QvxStatus qvxsSubCRev_8u_Sfs(const Qvx8u* a, Qvx8u val, Qvx8u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsSubCRev_8u_ISfs(Qvx8u val, Qvx8u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsSubCRev_16s_Sfs(const Qvx16s* a, Qvx16s val, Qvx16s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsSubCRev_16s_ISfs(Qvx16s val, Qvx16s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsSubCRev_16u_Sfs(const Qvx16u* a, Qvx16u val, Qvx16u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsSubCRev_16u_ISfs(Qvx16u val, Qvx16u* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsSubCRev_16sc_Sfs(const Qvx16sc* a, Qvx16sc val, Qvx16sc* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsSubCRev_16sc_ISfs(Qvx16sc val, Qvx16sc* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsSubCRev_32s_Sfs(const Qvx32s* a, Qvx32s val, Qvx32s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsSubCRev_32s_ISfs(Qvx32s val, Qvx32s* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsSubCRev_32sc_Sfs(const Qvx32sc* a, Qvx32sc val, Qvx32sc* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsSubCRev_32sc_ISfs(Qvx32sc val, Qvx32sc* d, int len, int sf) { return map<Difference>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsSubCRev_32f(const Qvx32f* a, Qvx32f val, Qvx32f* d, int len) { return map<Difference>(d, len, PastCaches{}, a, Constant{val}); }
QvxStatus qvxsSubCRev_32f_I(Qvx32f val, Qvx32f* d, int len) { return map<Difference>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsSubCRev_32fc(const Qvx32fc* a, Qvx32fc val, Qvx32fc* d, int len) { return map<Difference>(d, len, PastCaches{}, a, Constant{val}); }
QvxStatus qvxsSubCRev_32fc_I(Qvx32fc val, Qvx32fc* d, int len) { return map<Difference>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsSubCRev_64f(const Qvx64f* a, Qvx64f val, Qvx64f* d, int len) { return map<Difference>(d, len, PastCaches{}, a, Constant{val}); }
QvxStatus qvxsSubCRev_64f_I(Qvx64f val, Qvx64f* d, int len) { return map<Difference>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsSubCRev_64fc(const Qvx64fc* a, Qvx64fc val, Qvx64fc* d, int len) { return map<Difference>(d, len, PastCaches{}, a, Constant{val}); }
QvxStatus qvxsSubCRev_64fc_I(Qvx64fc val, Qvx64fc* d, int len) { return map<Difference>(d, len, AsIs{}, d, Constant{val}); }
// clang-format on
