#include "correlation/band.h"

#include "correlation/spectral.h"

namespace qvx::correlation {

namespace {

// What a product of the direct way costs in the units of a transform's cost, as the vectors are wide.
template <class C> inline constexpr double kProductCost = 0.5 * (kHasMasks ? 1 : kFuses ? 2 : 4) * sizeof(Part<C>) / 4;

template <class C> bool isFasterDirectly(const Band<C>& band, const Cut& cut) {
  const auto products = static_cast<double>(band.outputs) * static_cast<double>(std::min(band.count, band.length));
  return products * kProductCost<C> * PartsOf<C>::kCount <= cut.cost;
}

}  // namespace

template <class C> QvxStatus correlateBand(const Band<C>& band, C* y, Way way) {
  if (way == Way::kAny) {
    const Cut cut = cutOf(band);
    if (!isFasterDirectly(band, cut)) return spectralBand(band, cut, y);
  }
  directBand(band, y);
  mendEnds(band, y);
  return qvxStatOk;
}

template QvxStatus correlateBand(const Band<Qvx32f>&, Qvx32f*, Way);
template QvxStatus correlateBand(const Band<Qvx64f>&, Qvx64f*, Way);
template QvxStatus correlateBand(const Band<Qvx32fc>&, Qvx32fc*, Way);
template QvxStatus correlateBand(const Band<Qvx64fc>&, Qvx64fc*, Way);

}  // namespace qvx::correlation
