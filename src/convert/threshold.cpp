// Real elements clipped to a level or replaced beyond it.
//
// The element is always the second operand of a maximum or minimum: that is what the instruction gives when the two are equal or
// one of them is a NaN, so that it stays as it is, to the bit.
#include "convert/level.h"
#include "frame/past_caches.h"

using namespace qvx;

namespace {

// value in these lanes, x in the others. SSSE3 selects by three instructions either way: these spare it the copies of mask and
// element, and take 0.8 of the time.
template <class M, class V> V replaced(M lanes, V value, V x) {
  if constexpr (QVXS_AVX2) return hn::IfThenElse(lanes, value, x);
  else return value ^ hn::AndNot(hn::VecFromMask(TagOf<V>(), lanes), value ^ x);
}
// Loaded once, where it would be loaded for each use.
template <class V> V loadedOnce(V x) {
  if constexpr (QVXS_AVX2) return x;
  else return held(x);
}

template <class V> inline constexpr bool kSelects = !QVXS_AVX2 && std::is_same_v<LaneOf<V>, int32_t>;  // has no maximum

struct RaiseTo {
  template <class V> V operator()(V given, V level) const {
    const V x = loadedOnce(given);
    if constexpr (kSelects<V>) return replaced(x < level, level, x);
    else return hn::Max(level, x);
  }
};
struct LowerTo {
  template <class V> V operator()(V given, V level) const {
    const V x = loadedOnce(given);
    if constexpr (kSelects<V>) return replaced(x > level, level, x);
    else return hn::Min(level, x);
  }
};

struct ReplaceBelow {
  template <class V> V operator()(V given, V level, V value) const {
    const V x = loadedOnce(given);
    return replaced(x < level, value, x);
  }
};
struct ReplaceAbove {
  template <class V> V operator()(V given, V level, V value) const {
    const V x = loadedOnce(given);
    return replaced(x > level, value, x);
  }
};
struct ReplaceOutside {
  template <class V> V operator()(V x, V levelLT, V valueLT, V levelGT, V valueGT) const {
    return hn::IfThenElse(x < levelLT, valueLT, hn::IfThenElse(x > levelGT, valueGT, x));
  }
};

// Level is not negative. A float's sign is a bit beside its magnitude; the magnitude of the least integer does not fit its
// type, so integers are compared on either side of zero.
struct RaiseMagnitude {
  template <class V> V operator()(V x, V level) const {
    if constexpr (std::is_floating_point_v<LaneOf<V>>) {
      return hn::CopySignToAbs(hn::Max(hn::Abs(level), hn::Abs(x)), x);
    } else {
      return ifNegative(x, hn::Min(x, hn::Zero(TagOf<V>()) - level), hn::Max(x, level));
    }
  }
};
struct LowerMagnitude {
  template <class V> V operator()(V x, V level) const {
    if constexpr (std::is_floating_point_v<LaneOf<V>>) {
      return hn::CopySignToAbs(hn::Min(hn::Abs(level), hn::Abs(x)), x);
    } else {
      return hn::Max(hn::Min(x, level), hn::Zero(TagOf<V>()) - level);
    }
  }
};

template <class T> QvxStatus twoWay(const T* src, T* dst, int len, T level, int relOp) {
  if (relOp == kLessThan) return map<RaiseTo>(dst, len, AsIs{}, src, Constant{level});
  if (relOp == kGreaterThan) return map<LowerTo>(dst, len, AsIs{}, src, Constant{level});
  const QvxStatus status = check(len, src, dst);
  return status != qvxStatOk ? status : qvxStatBadArg;
}

template <class T> QvxStatus outside(const T* src, T* dst, int len, T levelLT, T valueLT, T levelGT, T valueGT) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  if (levelLT > levelGT) return qvxStatBadLevels;
  return map<ReplaceOutside>(dst, len, AsIs{}, src, Constant{levelLT}, Constant{valueLT}, Constant{levelGT}, Constant{valueGT});
}

template <class Op, class T> QvxStatus ofMagnitude(const T* src, T* dst, int len, T level) {
  const QvxStatus status = checkLevel(len, src, dst, level);
  return status != qvxStatOk ? status : map<Op>(dst, len, AsIs{}, src, Constant{level});
}

}  // namespace

// clang-format off
QvxStatus qvxsThreshold_16s(const Qvx16s* a, Qvx16s* d, int len, Qvx16s level, int relOp) { return twoWay(a, d, len, level, relOp); }
QvxStatus qvxsThreshold_16s_I(Qvx16s* d, int len, Qvx16s level, int relOp) { return twoWay(d, d, len, level, relOp); }
QvxStatus qvxsThreshold_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f level, int relOp) { return twoWay(a, d, len, level, relOp); }
QvxStatus qvxsThreshold_32f_I(Qvx32f* d, int len, Qvx32f level, int relOp) { return twoWay(d, d, len, level, relOp); }
QvxStatus qvxsThreshold_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f level, int relOp) { return twoWay(a, d, len, level, relOp); }
QvxStatus qvxsThreshold_64f_I(Qvx64f* d, int len, Qvx64f level, int relOp) { return twoWay(d, d, len, level, relOp); }

QvxStatus qvxsThreshold_LT_16s(const Qvx16s* a, Qvx16s* d, int len, Qvx16s level) { return map<RaiseTo>(d, len, AsIs{}, a, Constant{level}); }
QvxStatus qvxsThreshold_LT_16s_I(Qvx16s* d, int len, Qvx16s level) { return map<RaiseTo>(d, len, AsIs{}, d, Constant{level}); }
QvxStatus qvxsThreshold_LT_32s(const Qvx32s* a, Qvx32s* d, int len, Qvx32s level) { return map<RaiseTo>(d, len, AsIs{}, a, Constant{level}); }
QvxStatus qvxsThreshold_LT_32s_I(Qvx32s* d, int len, Qvx32s level) { return map<RaiseTo>(d, len, AsIs{}, d, Constant{level}); }
QvxStatus qvxsThreshold_LT_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f level) { return map<RaiseTo>(d, len, PastCaches{}, a, Constant{level}); }
QvxStatus qvxsThreshold_LT_32f_I(Qvx32f* d, int len, Qvx32f level) { return map<RaiseTo>(d, len, AsIs{}, d, Constant{level}); }
QvxStatus qvxsThreshold_LT_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f level) { return map<RaiseTo>(d, len, PastCaches{}, a, Constant{level}); }
QvxStatus qvxsThreshold_LT_64f_I(Qvx64f* d, int len, Qvx64f level) { return map<RaiseTo>(d, len, AsIs{}, d, Constant{level}); }

QvxStatus qvxsThreshold_GT_16s(const Qvx16s* a, Qvx16s* d, int len, Qvx16s level) { return map<LowerTo>(d, len, AsIs{}, a, Constant{level}); }
QvxStatus qvxsThreshold_GT_16s_I(Qvx16s* d, int len, Qvx16s level) { return map<LowerTo>(d, len, AsIs{}, d, Constant{level}); }
QvxStatus qvxsThreshold_GT_32s(const Qvx32s* a, Qvx32s* d, int len, Qvx32s level) { return map<LowerTo>(d, len, AsIs{}, a, Constant{level}); }
QvxStatus qvxsThreshold_GT_32s_I(Qvx32s* d, int len, Qvx32s level) { return map<LowerTo>(d, len, AsIs{}, d, Constant{level}); }
QvxStatus qvxsThreshold_GT_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f level) { return map<LowerTo>(d, len, PastCaches{}, a, Constant{level}); }
QvxStatus qvxsThreshold_GT_32f_I(Qvx32f* d, int len, Qvx32f level) { return map<LowerTo>(d, len, AsIs{}, d, Constant{level}); }
QvxStatus qvxsThreshold_GT_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f level) { return map<LowerTo>(d, len, PastCaches{}, a, Constant{level}); }
QvxStatus qvxsThreshold_GT_64f_I(Qvx64f* d, int len, Qvx64f level) { return map<LowerTo>(d, len, AsIs{}, d, Constant{level}); }

QvxStatus qvxsThreshold_LTVal_16s(const Qvx16s* a, Qvx16s* d, int len, Qvx16s level, Qvx16s value) { return map<ReplaceBelow>(d, len, AsIs{}, a, Constant{level}, Constant{value}); }
QvxStatus qvxsThreshold_LTVal_16s_I(Qvx16s* d, int len, Qvx16s level, Qvx16s value) { return map<ReplaceBelow>(d, len, AsIs{}, d, Constant{level}, Constant{value}); }
QvxStatus qvxsThreshold_LTVal_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f level, Qvx32f value) { return map<ReplaceBelow>(d, len, AsIs{}, a, Constant{level}, Constant{value}); }
QvxStatus qvxsThreshold_LTVal_32f_I(Qvx32f* d, int len, Qvx32f level, Qvx32f value) { return map<ReplaceBelow>(d, len, AsIs{}, d, Constant{level}, Constant{value}); }
QvxStatus qvxsThreshold_LTVal_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f level, Qvx64f value) { return map<ReplaceBelow>(d, len, AsIs{}, a, Constant{level}, Constant{value}); }
QvxStatus qvxsThreshold_LTVal_64f_I(Qvx64f* d, int len, Qvx64f level, Qvx64f value) { return map<ReplaceBelow>(d, len, AsIs{}, d, Constant{level}, Constant{value}); }

QvxStatus qvxsThreshold_GTVal_16s(const Qvx16s* a, Qvx16s* d, int len, Qvx16s level, Qvx16s value) { return map<ReplaceAbove>(d, len, AsIs{}, a, Constant{level}, Constant{value}); }
QvxStatus qvxsThreshold_GTVal_16s_I(Qvx16s* d, int len, Qvx16s level, Qvx16s value) { return map<ReplaceAbove>(d, len, AsIs{}, d, Constant{level}, Constant{value}); }
QvxStatus qvxsThreshold_GTVal_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f level, Qvx32f value) { return map<ReplaceAbove>(d, len, AsIs{}, a, Constant{level}, Constant{value}); }
QvxStatus qvxsThreshold_GTVal_32f_I(Qvx32f* d, int len, Qvx32f level, Qvx32f value) { return map<ReplaceAbove>(d, len, AsIs{}, d, Constant{level}, Constant{value}); }
QvxStatus qvxsThreshold_GTVal_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f level, Qvx64f value) { return map<ReplaceAbove>(d, len, AsIs{}, a, Constant{level}, Constant{value}); }
QvxStatus qvxsThreshold_GTVal_64f_I(Qvx64f* d, int len, Qvx64f level, Qvx64f value) { return map<ReplaceAbove>(d, len, AsIs{}, d, Constant{level}, Constant{value}); }

QvxStatus qvxsThreshold_LTValGTVal_16s(const Qvx16s* a, Qvx16s* d, int len, Qvx16s levelLT, Qvx16s valueLT, Qvx16s levelGT, Qvx16s valueGT) { return outside(a, d, len, levelLT, valueLT, levelGT, valueGT); }
QvxStatus qvxsThreshold_LTValGTVal_16s_I(Qvx16s* d, int len, Qvx16s levelLT, Qvx16s valueLT, Qvx16s levelGT, Qvx16s valueGT) { return outside(d, d, len, levelLT, valueLT, levelGT, valueGT); }
QvxStatus qvxsThreshold_LTValGTVal_32s(const Qvx32s* a, Qvx32s* d, int len, Qvx32s levelLT, Qvx32s valueLT, Qvx32s levelGT, Qvx32s valueGT) { return outside(a, d, len, levelLT, valueLT, levelGT, valueGT); }
QvxStatus qvxsThreshold_LTValGTVal_32s_I(Qvx32s* d, int len, Qvx32s levelLT, Qvx32s valueLT, Qvx32s levelGT, Qvx32s valueGT) { return outside(d, d, len, levelLT, valueLT, levelGT, valueGT); }
QvxStatus qvxsThreshold_LTValGTVal_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f levelLT, Qvx32f valueLT, Qvx32f levelGT, Qvx32f valueGT) { return outside(a, d, len, levelLT, valueLT, levelGT, valueGT); }
QvxStatus qvxsThreshold_LTValGTVal_32f_I(Qvx32f* d, int len, Qvx32f levelLT, Qvx32f valueLT, Qvx32f levelGT, Qvx32f valueGT) { return outside(d, d, len, levelLT, valueLT, levelGT, valueGT); }
QvxStatus qvxsThreshold_LTValGTVal_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f levelLT, Qvx64f valueLT, Qvx64f levelGT, Qvx64f valueGT) { return outside(a, d, len, levelLT, valueLT, levelGT, valueGT); }
QvxStatus qvxsThreshold_LTValGTVal_64f_I(Qvx64f* d, int len, Qvx64f levelLT, Qvx64f valueLT, Qvx64f levelGT, Qvx64f valueGT) { return outside(d, d, len, levelLT, valueLT, levelGT, valueGT); }

QvxStatus qvxsThreshold_LTAbs_16s(const Qvx16s* a, Qvx16s* d, int len, Qvx16s level) { return ofMagnitude<RaiseMagnitude>(a, d, len, level); }
QvxStatus qvxsThreshold_LTAbs_16s_I(Qvx16s* d, int len, Qvx16s level) { return ofMagnitude<RaiseMagnitude>(d, d, len, level); }
QvxStatus qvxsThreshold_LTAbs_32s(const Qvx32s* a, Qvx32s* d, int len, Qvx32s level) { return ofMagnitude<RaiseMagnitude>(a, d, len, level); }
QvxStatus qvxsThreshold_LTAbs_32s_I(Qvx32s* d, int len, Qvx32s level) { return ofMagnitude<RaiseMagnitude>(d, d, len, level); }
QvxStatus qvxsThreshold_LTAbs_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f level) { return ofMagnitude<RaiseMagnitude>(a, d, len, level); }
QvxStatus qvxsThreshold_LTAbs_32f_I(Qvx32f* d, int len, Qvx32f level) { return ofMagnitude<RaiseMagnitude>(d, d, len, level); }
QvxStatus qvxsThreshold_LTAbs_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f level) { return ofMagnitude<RaiseMagnitude>(a, d, len, level); }
QvxStatus qvxsThreshold_LTAbs_64f_I(Qvx64f* d, int len, Qvx64f level) { return ofMagnitude<RaiseMagnitude>(d, d, len, level); }

QvxStatus qvxsThreshold_GTAbs_16s(const Qvx16s* a, Qvx16s* d, int len, Qvx16s level) { return ofMagnitude<LowerMagnitude>(a, d, len, level); }
QvxStatus qvxsThreshold_GTAbs_16s_I(Qvx16s* d, int len, Qvx16s level) { return ofMagnitude<LowerMagnitude>(d, d, len, level); }
QvxStatus qvxsThreshold_GTAbs_32s(const Qvx32s* a, Qvx32s* d, int len, Qvx32s level) { return ofMagnitude<LowerMagnitude>(a, d, len, level); }
QvxStatus qvxsThreshold_GTAbs_32s_I(Qvx32s* d, int len, Qvx32s level) { return ofMagnitude<LowerMagnitude>(d, d, len, level); }
QvxStatus qvxsThreshold_GTAbs_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f level) { return ofMagnitude<LowerMagnitude>(a, d, len, level); }
QvxStatus qvxsThreshold_GTAbs_32f_I(Qvx32f* d, int len, Qvx32f level) { return ofMagnitude<LowerMagnitude>(d, d, len, level); }
QvxStatus qvxsThreshold_GTAbs_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f level) { return ofMagnitude<LowerMagnitude>(a, d, len, level); }
QvxStatus qvxsThreshold_GTAbs_64f_I(Qvx64f* d, int len, Qvx64f level) { return ofMagnitude<LowerMagnitude>(d, d, len, level); }
// clang-format on
