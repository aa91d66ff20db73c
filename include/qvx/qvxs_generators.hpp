// Streams of noise, tones and triangles: records as objects, each call of which gives the next samples.
#ifndef QVX_QVXS_GENERATORS_HPP
#define QVX_QVXS_GENERATORS_HPP

#include <qvx/qvxs_memory.hpp>

namespace qvx {
inline namespace QVX_POLICY {
namespace records {

using namespace qvx::detail;

// How a stem makes, runs and ends its record.
struct UniformStem {
  static QvxStatus make(auto... a) { return handles::RandUniformInitAlloc(a...); }
  static QvxStatus run(auto... a) { return handles::RandUniform(a...); }
  static QvxStatus free(auto* record) { return handles::RandUniformFree(record); }
};
struct GaussStem {
  static QvxStatus make(auto... a) { return handles::RandGaussInitAlloc(a...); }
  static QvxStatus run(auto... a) { return handles::RandGauss(a...); }
  static QvxStatus free(auto* record) { return handles::RandGaussFree(record); }
};
struct ToneStem {
  static QvxStatus make(auto... a) { return handles::ToneInitAllocQ15(a...); }
  static QvxStatus run(auto... a) { return handles::ToneQ15(a...); }
  static QvxStatus free(auto* record) { return handles::ToneFree(record); }
};
struct TriangleStem {
  static QvxStatus make(auto... a) { return handles::TriangleInitAllocQ15(a...); }
  static QvxStatus run(auto... a) { return handles::TriangleQ15(a...); }
  static QvxStatus free(auto* record) { return handles::TriangleFree(record); }
};

template <class Stem, class Record, class T, class... Arguments> class Generator {
 public:
  static Result<Generator> make(Arguments... arguments) {
    Generator made;
    const Status status = Stem::make(made.owner_.slot(), arguments...);
    if (status.refused()) return status;
    return made;
  }
  Status generate(Target<T> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return Stem::run(dst.data(), static_cast<int>(dst.size()), owner_.get());
  }

 private:
  Owner<Stem, Record> owner_;
};

}  // namespace records

// Made from low, high and a seed; of Qvx8u, Qvx16s or Qvx32f.
template <class T>
using UniformNoise =
    records::Generator<records::UniformStem, typename handles::RecordOf<handles::RandUniformStem, T>::type, T, T, T, Qvx32u>;
// Made from mean, standard deviation and a seed; of the same types.
template <class T>
using GaussNoise =
    records::Generator<records::GaussStem, typename handles::RecordOf<handles::RandGaussStem, T>::type, T, T, T, Qvx32u>;
// Made from magnitude, relative frequency and phase, the latter in units of 2^-15.
using ToneStream = records::Generator<records::ToneStem, QvxsToneState, Qvx16s, Qvx16s, Qvx16s, Qvx32s>;
// Made from magnitude, relative frequency, asymmetry and phase.
using TriangleStream = records::Generator<records::TriangleStem, QvxsTriangleState, Qvx16s, Qvx16s, Qvx16s, Qvx32s, Qvx32s>;

}  // namespace QVX_POLICY
}  // namespace qvx

#endif
