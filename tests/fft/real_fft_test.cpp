// Transforms of real sequences: the definition in each layout, and the way back, by one thread and by two.
#include <qvx/qvxcore.h>

#include <cstring>

#include "fft/transforms.h"
#include "reference/packed.h"

namespace {

using tests::Exact;
using tests::Random;

using reference::Layout;

constexpr Layout kLayouts[] = {Layout::kPerm, Layout::kPack, Layout::kCcs};  // in the order of each type's functions

template <class T_, class Spec_> struct Real {
  using T = T_;
  using Spec = Spec_;
  using Run = QvxStatus (*)(const T*, T*, const Spec*, Qvx8u*);
  using RunI = QvxStatus (*)(T*, const Spec*, Qvx8u*);
  tests::Life<Spec> life;
  Run fwd[3];
  RunI fwdI[3];
  Run inv[3];
  RunI invI[3];
};

const Real<Qvx32f, QvxsFFTSpec_R_32f> k32f = {
    {qvxsFFTGetSize_R_32f, qvxsFFTInit_R_32f, qvxsFFTInitAlloc_R_32f, qvxsFFTFree_R_32f, qvxsFFTGetBufSize_R_32f},
    {qvxsFFTFwd_RToPerm_32f, qvxsFFTFwd_RToPack_32f, qvxsFFTFwd_RToCCS_32f},
    {qvxsFFTFwd_RToPerm_32f_I, qvxsFFTFwd_RToPack_32f_I, qvxsFFTFwd_RToCCS_32f_I},
    {qvxsFFTInv_PermToR_32f, qvxsFFTInv_PackToR_32f, qvxsFFTInv_CCSToR_32f},
    {qvxsFFTInv_PermToR_32f_I, qvxsFFTInv_PackToR_32f_I, qvxsFFTInv_CCSToR_32f_I}};
const Real<Qvx64f, QvxsFFTSpec_R_64f> k64f = {
    {qvxsFFTGetSize_R_64f, qvxsFFTInit_R_64f, qvxsFFTInitAlloc_R_64f, qvxsFFTFree_R_64f, qvxsFFTGetBufSize_R_64f},
    {qvxsFFTFwd_RToPerm_64f, qvxsFFTFwd_RToPack_64f, qvxsFFTFwd_RToCCS_64f},
    {qvxsFFTFwd_RToPerm_64f_I, qvxsFFTFwd_RToPack_64f_I, qvxsFFTFwd_RToCCS_64f_I},
    {qvxsFFTInv_PermToR_64f, qvxsFFTInv_PackToR_64f, qvxsFFTInv_CCSToR_64f},
    {qvxsFFTInv_PermToR_64f_I, qvxsFFTInv_PackToR_64f_I, qvxsFFTInv_CCSToR_64f_I}};

template <class T> long double relative(const std::vector<T>& found, const std::vector<T>& expected) {
  long double error = 0;
  long double size = 0;
  for (size_t i = 0; i < expected.size(); ++i) {
    const long double e = static_cast<long double>(found[i]) - static_cast<long double>(expected[i]);
    error += e * e;
    size += static_cast<long double>(expected[i]) * static_cast<long double>(expected[i]);
  }
  return size == 0 ? error : std::sqrt(error / size);
}

template <class Type> void checkOrder(const Type& type, int order, std::initializer_list<int> flags, Random& random) {
  using T = typename Type::T;
  const size_t n = size_t{1} << order;
  std::uniform_real_distribution<T> uniform(-1, 1);
  std::vector<T> x(n);
  for (T& v : x) v = uniform(random);
  const std::vector<Exact> spectrum = tests::dft(std::vector<Exact>(x.begin(), x.end()), -1);
  // Rounding of what is compared with, and of the factor of flag 4 in single precision.
  const long double allowed = tests::allowedError<T>(order) + 0.3L * std::numeric_limits<T>::epsilon();
  for (const int flag : flags) {
    const tests::Record record(type.life, order, flag);
    const long double slack = flag == QVX_FFT_SCALE_BOTH_SQRT ? 3 * std::numeric_limits<T>::epsilon() : 0;
    std::vector<Qvx8u> work(static_cast<size_t>(record.bufferSize()));
    Qvx8u* buffer = work.empty() ? nullptr : work.data();
    for (const Layout layout : kLayouts) {
      const auto at = static_cast<size_t>(layout);
      SCOPED_TRACE(testing::Message() << sizeof(T) << " bytes, order " << order << ", flag " << flag << ", layout " << at);
      std::vector<Exact> scaled = spectrum;
      for (Exact& z : scaled) z *= tests::factorOf(flag, false, order);
      const std::vector<T> expected = reference::packed<T>(layout, scaled);
      tests::Block block(expected.size() * sizeof(T));
      T* dst = reinterpret_cast<T*>(block.atEnd(expected.size() * sizeof(T)));
      EXPECT_EQ(type.fwd[at](x.data(), dst, record.get(), buffer), qvxStatOk);
      const std::vector<T> found(dst, dst + expected.size());
      EXPECT_TRUE(block.isIntact());
      EXPECT_LE(relative(found, expected), allowed + slack);
      EXPECT_TRUE(layout != Layout::kCcs || (found[1] == 0 && (n == 1 || found[n + 1] == 0)));
      std::vector<T> inPlace = x;
      inPlace.resize(expected.size());
      EXPECT_EQ(type.fwdI[at](inPlace.data(), record.get(), nullptr), qvxStatOk);
      EXPECT_EQ(inPlace, found) << "in place";

      std::vector<T> source = expected;
      if (layout == Layout::kCcs) source[1] = std::numeric_limits<T>::quiet_NaN();
      if (layout == Layout::kCcs && n > 1) source[n + 1] = std::numeric_limits<T>::quiet_NaN();
      std::vector<T> wanted = x;
      const long double factor =
          tests::factorOf(flag, false, order) * tests::factorOf(flag, true, order) * static_cast<long double>(n);
      for (T& v : wanted) v = static_cast<T>(v * factor);
      tests::Block out(n * sizeof(T));
      T* back = reinterpret_cast<T*>(out.atEnd(n * sizeof(T)));
      EXPECT_EQ(type.inv[at](source.data(), back, record.get(), buffer), qvxStatOk);
      EXPECT_TRUE(out.isIntact());
      const std::vector<T> returned(back, back + n);
      EXPECT_LE(relative(returned, wanted), allowed + 2 * slack);
      EXPECT_EQ(type.invI[at](source.data(), record.get(), nullptr), qvxStatOk);
      EXPECT_TRUE(std::equal(returned.begin(), returned.end(), source.begin())) << "inverse in place";
    }
  }
}

TEST(RealFft, IsTheDefinitionInEachLayout) {
  Random random(tests::seed());
  for (int order = 0; order <= 14; ++order) {
    checkOrder(k32f, order, {1, 2, 4, 8}, random);
    checkOrder(k64f, order, {1, 2, 4, 8}, random);
  }
  for (const int order : {15, 18, 19, 20, 21}) checkOrder(k32f, order, {QVX_FFT_SCALE_NONE}, random);
  for (const int order : {16, 17, 18, 19}) checkOrder(k64f, order, {QVX_FFT_SCALE_NONE}, random);
}

// The transform and what makes a spectrum of it, both divided.
TEST(RealFft, NobodyCanTellTheThreads) {
  Random random(tests::seed());
  const auto check = [&](const auto& type, int order) {
    using T = typename std::decay_t<decltype(type)>::T;
    const size_t n = size_t{1} << order;
    std::uniform_real_distribution<T> uniform(-1, 1);
    std::vector<T> x(n);
    for (T& v : x) v = uniform(random);
    for (const Layout layout : kLayouts) {
      const auto at = static_cast<size_t>(layout);
      std::vector<T> spectrum[2], back[2];
      for (const int threads : {1, 2}) {
        qvxSetNumThreads(threads);
        const tests::Record record(type.life, order, QVX_FFT_SCALE_INV);
        std::vector<T>& found = spectrum[threads - 1];
        found.resize(reference::sizeOf(layout, n));
        EXPECT_EQ(type.fwd[at](x.data(), found.data(), record.get(), nullptr), qvxStatOk);
        back[threads - 1] = found;
        EXPECT_EQ(type.invI[at](back[threads - 1].data(), record.get(), nullptr), qvxStatOk);
      }
      qvxSetNumThreads(0);
      EXPECT_TRUE(spectrum[0] == spectrum[1] && back[0] == back[1]) << sizeof(T) << " bytes, " << order << ", layout " << at;
    }
  };
  for (const int order : {17, 19}) check(k32f, order);
  for (const int order : {16, 18}) check(k64f, order);
}

}  // namespace
