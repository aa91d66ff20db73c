// Compiled by compile_test.cpp to assembly: what begins with face has to have the instructions of what begins with direct.
#include <array>

#include <qvx/qvxs.hpp>

extern "C" {

#if QVX_LENGTHS == QVX_LENGTHS_ASSERTED
using Length = size_t;

QvxStatus direct_add(const Qvx32f* a, const Qvx32f* b, Qvx32f* dst, Length len) {
  return qvxsAdd_32f(a, b, dst, static_cast<int>(len));
}
QvxStatus face_add(const Qvx32f* a, const Qvx32f* b, Qvx32f* dst, Length len) {
  return qvx::Add(std::span(a, len), std::span(b, len), std::span(dst, len));
}

QvxStatus direct_multiply(Qvx16s val, Qvx16s* srcDst, Length len) {
  return qvxsMulC_16s_ISfs(val, srcDst, static_cast<int>(len), 3);
}
QvxStatus face_multiply(Qvx16s val, Qvx16s* srcDst, Length len) { return qvx::MulC(val, std::span(srcDst, len), 3); }

Qvx32f direct_dot(const Qvx32f* a, const Qvx32f* b, Length len) {
  Qvx32f sum = 0;
  qvxsDotProd_32f(a, b, static_cast<int>(len), &sum);
  return sum;
}
Qvx32f face_dot(const Qvx32f* a, const Qvx32f* b, Length len) {
  Qvx32f sum = 0;
  static_cast<void>(qvx::DotProd(std::span(a, len), std::span(b, len), sum));
  return sum;
}

QvxStatus direct_transform(qvx::Fft<Qvx32f>& fft, const Qvx32f* src, Qvx32f* dst, Length) {
  return qvxsFFTFwd_RToPerm_32f(src, dst, fft.record, fft.buffer);
}
QvxStatus face_transform(qvx::Fft<Qvx32f>& fft, const Qvx32f* src, Qvx32f* dst, Length len) {
  return fft.toPerm(std::span(src, len), std::span(dst, len));
}
#else
// Lengths that are checked cost nothing where the compiler knows them.
using Block = std::array<Qvx32f, 256>;

QvxStatus direct_add(const Block& a, const Block& b, Block& dst) { return qvxsAdd_32f(a.data(), b.data(), dst.data(), 256); }
QvxStatus face_add(const Block& a, const Block& b, Block& dst) { return qvx::Add(a, b, dst); }

QvxStatus direct_window(Block& block) { return qvxsWinKaiser_32f_I(block.data(), 256, 0.02F); }
QvxStatus face_window(Block& block) { return qvx::WinKaiser(block, 0.02F); }

QvxStatus direct_convolve(const Block& a, const Block& b, std::array<Qvx32f, 511>& dst) {
  return qvxsConv_32f(a.data(), 256, b.data(), 256, dst.data());
}
QvxStatus face_convolve(const Block& a, const Block& b, std::array<Qvx32f, 511>& dst) { return qvx::Conv(a, b, dst); }
#endif
}
