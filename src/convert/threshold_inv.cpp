// Reciprocals of elements whose magnitude is raised to a level first.
#include "convert/level.h"
#include "convert/magnitude.h"
#include "frame/team.h"

using namespace qvx;

namespace {

// A zero at level 0 has no reciprocal and becomes an infinity.
template <class T> struct Reciprocal {
  static constexpr QvxStatus kWarning = qvxWarnInvZero;
  T level;

  template <class V> V operator()(Flag& flag, V x) const {
    const TagOf<V> d;
    const V raised = hn::Max(same<V>(level), hn::Abs(x));  // an x that is not a number stays
    flag.raise(d, raised == hn::Zero(d));
    return same<V>(1) / hn::CopySignToAbs(raised, x);
  }
};

// conj(x) / |x|^2, or conj(x) / |x| / level below the level.
struct ComplexReciprocal {
  static constexpr QvxStatus kWarning = qvxWarnInvZero;
  double level;

  template <class V> V operator()(Flag& flag, V x) const {
    const auto m = measured(x);
    using W = std::remove_const_t<decltype(m.value)>;
    const W conjugate = m.value ^ byPart<W>(0.0, -0.0);
    W inverse = conjugate / m.square * m.unit;
    const auto below = m.isBelow(level);
    if (isAny(below, m.value)) {
      inverse = hn::IfThenElse(below, conjugate / hn::Sqrt(m.square) / same<W>(level), inverse);
    }
    const auto isOrdinary = hn::And(m.square > same<W>(0), m.square < same<W>(kInfinity));
    if (!hn::AllTrue(TagOf<W>(), isOrdinary)) [[unlikely]]
      inverse = special(flag, m, conjugate, inverse);
    return fromDoubles<V>(inverse);
  }

 private:
  static constexpr double kInfinity = std::numeric_limits<double>::infinity();

  // Zeros, infinities and what is not a number, which the arithmetic alone would all make into the last. Every variant gives that
  // one with the same bits.
  template <class W> W special(Flag& flag, const Measured<W>& m, W conjugate, W inverse) const {
    inverse = hn::IfThenElse(m.square == m.square, inverse, same<W>(std::numeric_limits<double>::quiet_NaN()));
    inverse = hn::IfThenElse(m.isInfinite(), hn::CopySign(same<W>(0), conjugate), inverse);
    if (level > 0) return hn::IfThenElse(m.isZero(), hn::CopySign(byPart<W>(1 / level, 0), conjugate), inverse);
    flag.raise(TagOf<W>(), m.isZero());
    return hn::IfThenElse(m.isZero(), same<W>(kInfinity), inverse);
  }
};

// As many elements at a time as doubles fill a register.
struct InDoubles {
  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    return loop<double>(op, dst, n, src...);
  }
};

// From the length on from which a vector may be divided, the warning is another.
template <TeamRule kRule, class Fit, class T, class Kernel, class Src>
QvxStatus inverted(Part<T> level, T* dst, int len, Kernel kernel, Src src) {
  const QvxStatus status = checkLevel<T>(len, pointerOf(src), dst, level);
  if (status != qvxStatOk) return status;
  const SilentScope silent;
  const QvxStatus met = InTeam<kRule, Fit>{}.run(kernel, destination(dst), elements(len) * PartsOf<T>::kCount, source(src));
  return met == qvxWarnInvZero && elements(len) >= kRule.threaded ? qvxWarnDivByZero : met;
}

template <TeamRule kRule, class T> QvxStatus inverse(const T* src, T* dst, int len, T level) {
  return inverted<kRule, AsIs>(level, dst, len, Reciprocal<T>{level}, OnesBehind{src});
}
template <TeamRule kRule, class T> QvxStatus complexInverse(const T* src, T* dst, int len, Part<T> level) {
  return inverted<kRule, InDoubles>(level, dst, len, ComplexReciprocal{level}, src);
}

constexpr TeamRule k32f = {.threaded = 8192, .worthIt = 16384};
constexpr TeamRule k64f = {.threaded = 2048, .worthIt = 16384};
constexpr TeamRule k32fc = {.threaded = 2048, .worthIt = 8192};
constexpr TeamRule k64fc = {.threaded = 512, .worthIt = 8192};

}  // namespace

// clang-format off
QvxStatus qvxsThreshold_LTInv_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f level) { return inverse<k32f>(a, d, len, level); }
QvxStatus qvxsThreshold_LTInv_32f_I(Qvx32f* d, int len, Qvx32f level) { return inverse<k32f>(d, d, len, level); }
QvxStatus qvxsThreshold_LTInv_32fc(const Qvx32fc* a, Qvx32fc* d, int len, Qvx32f level) { return complexInverse<k32fc>(a, d, len, level); }
QvxStatus qvxsThreshold_LTInv_32fc_I(Qvx32fc* d, int len, Qvx32f level) { return complexInverse<k32fc>(d, d, len, level); }
QvxStatus qvxsThreshold_LTInv_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f level) { return inverse<k64f>(a, d, len, level); }
QvxStatus qvxsThreshold_LTInv_64f_I(Qvx64f* d, int len, Qvx64f level) { return inverse<k64f>(d, d, len, level); }
QvxStatus qvxsThreshold_LTInv_64fc(const Qvx64fc* a, Qvx64fc* d, int len, Qvx64f level) { return complexInverse<k64fc>(a, d, len, level); }
QvxStatus qvxsThreshold_LTInv_64fc_I(Qvx64fc* d, int len, Qvx64f level) { return complexInverse<k64fc>(d, d, len, level); }
// clang-format on
