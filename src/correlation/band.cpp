#include "correlation/band.h"

#include "correlation/long_product.h"

namespace qvx::correlation {

namespace {

// The cost of a product of the direct way in units of a transform's cost, by the width of vectors.
template <class C> inline constexpr double kProductCost = 0.5 * (kHasMasks ? 1 : kFuses ? 2 : 4) * sizeof(Part<C>) / 4;

// Below this cost, 5 us, the search for another way to cut a call would be noticeable.
constexpr double kWorthLongProducts = 1 << 17;

template <class C> bool isFasterDirectly(const Band<C>& band, double cost) {
  const auto products = static_cast<double>(band.outputs) * static_cast<double>(std::min(band.count, band.length));
  return products * kProductCost<C> * PartsOf<C>::kCount <= cost;
}

}  // namespace

template <class C> QvxStatus correlateBand(const Band<C>& band, C* y, Way way) {
  if (way == Way::kAny) {
    const Cut cut = cutOf(band);
    const LongCut longCut = cut.cost < kWorthLongProducts ? LongCut() : longCutOf(band);
    if (!isFasterDirectly(band, std::min(cut.cost, longCut.cost))) {
      return isFasterThan(longCut, band, cut) ? byLongProducts(band, longCut, y) : spectralBand(band, cut, y);
    }
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
