// The three variants side by side in one process: every function, called by its type with the same data, gives the same bits.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <set>

#include "support/exports.h"

namespace {

using tests::Export;

struct Library {
  std::string variant;
  void* handle;
};

// Those that the processor can run.
std::vector<Library> libraries() {
  const char* folder = std::getenv("QVXS_VARIANTS_DIR");
  std::vector<Library> all;
  if (folder == nullptr) return all;
  for (const char* variant : {"u8", "w3", "w4"}) {
    if (!std::strcmp(variant, "w3") && !__builtin_cpu_supports("x86-64-v3")) continue;
    if (!std::strcmp(variant, "w4") && !__builtin_cpu_supports("x86-64-v4")) continue;
    const std::string path = std::string(folder) + "/" + variant + "/libqvxs.so.7";
    if (void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) all.push_back({variant, handle});
  }
  return all;
}

bool hasOneOf(const std::string& name, std::initializer_list<const char*> parts) {
  return std::any_of(parts.begin(), parts.end(), [&](const char* part) { return name.find(part) != name.npos; });
}

// One set of arguments: random blocks by the kind of their elements, and the given integers by name.
class Sample : public tests::Arguments {
 public:
  Sample(const Export& e, uint64_t seed, int len, int scaleFactor, int mode)
      : export_(e),
        random_(seed),
        len_(len),
        scaleFactor_(scaleFactor),
        mode_(mode),
        hasSpecials_(hasOneOf(e.name, {"Convert", "Max", "Min", "Threshold", "Lin", "Join"})) {}

  void* pointer(size_t index, size_t elementSize, bool, char kind) override {
    if (kind == 'p' || kind == 'P') {  // one channel a parameter that the function does not have
      for (size_t c = 0; c < kChannels; ++c) channels_[c] = pointer(kFirstChannel + c, sizeof(float), false, 'f');
      return channels_;
    }
    std::vector<uint8_t>& block = blocks_[index];
    if (block.empty()) {
      const size_t elements = (static_cast<size_t>(len_) + 64) * (export_.indexOf("nChannels") >= 0 ? kChannels : 1);
      block.resize(elements * std::max<size_t>(elementSize, 4) + 16);
      fill(block, kind);
    }
    return block.data() + 1;  // misaligned on purpose: any address is allowed
  }
  int64_t integer(size_t index) override {
    const std::string& name = export_.parameters[index].name;
    if (name == "len" || name == "tblLen" || name == "chanLen") return len_;
    if (name == "nChannels") return static_cast<int64_t>(1 + static_cast<size_t>(len_) % kChannels);
    if (name == "relOp") return len_ % 2 * 4;
    if (name == "level") return static_cast<int64_t>(seedOf(index) & 0x7FFF);
    if (name == "scaleFactor") return scaleFactor_;
    if (name == "rndMode") return mode_;
    if (name == "srcBitOffset" || name == "dstBitOffset") return (scaleFactor_ & 15) + static_cast<int>(index);
    if (export_.name.find("ShiftC") != std::string::npos) return scaleFactor_ & 31;
    return static_cast<int64_t>(seedOf(index));
  }
  double real(size_t index) override {
    const double x = std::ldexp(static_cast<double>(static_cast<int64_t>(seedOf(index))), -60);
    return export_.parameters[index].name == "level" ? std::fabs(x) : x;
  }
  const std::vector<uint8_t>* blocks() const { return blocks_; }
  static constexpr size_t kBlocks = 15;

 private:
  uint64_t seedOf(size_t index) const { return std::mt19937_64(static_cast<uint64_t>(len_) * 977 + index)(); }
  void fill(std::vector<uint8_t>& block, char kind) {
    const size_t size = kind == 'd' ? 8 : 4;
    for (size_t i = 0; i + 9 < block.size(); i += size) {
      const uint64_t bits = random_();
      if (kind == 'i') {
        const uint64_t word = (bits & 3) == 0 ? uint64_t{0} - (bits >> 2 & 1) : bits >> 8;
        std::memcpy(block.data() + 1 + i, &word, 4);
        continue;
      }
      double x = std::ldexp(static_cast<double>(static_cast<int64_t>(random_())), -60 + static_cast<int>(bits >> 8 & 15));
      if ((bits & 3) == 0) x = std::trunc(x) + 0.5;
      if (hasSpecials_ && (bits & 31) == 5) x = (bits & 32) != 0 ? INFINITY : NAN;
      if (hasSpecials_ && (bits & 31) == 7) x *= 1e20;
      const auto single = static_cast<float>(x);
      if (kind == 'd') std::memcpy(block.data() + 1 + i, &x, 8);
      else std::memcpy(block.data() + 1 + i, &single, 4);
    }
  }

  const Export& export_;
  std::mt19937_64 random_;
  int len_;
  int scaleFactor_;
  int mode_;
  bool hasSpecials_;
  static constexpr size_t kFirstChannel = 8;
  static constexpr size_t kChannels = 7;
  std::vector<uint8_t> blocks_[kBlocks];
  void* channels_[kChannels];
};

// Their order of operations is open, and a variant's own: only the status is the same. How far they may be off is tested
// elsewhere.
bool isElementaryFloat(const Export& e) {
  static const std::set<std::string> stems = {"qvxsExp",   "qvxsLn",          "qvxsSumLn",      "qvxsArctan",
                                              "qvxsPhase", "qvxsCartToPolar", "qvxsPolarToCart"};
  const size_t tag = e.name.find('_');
  return stems.count(e.name.substr(0, tag)) != 0 && e.name.find('f', tag) != std::string::npos && e.indexOf("scaleFactor") < 0;
}

// The order of operations in a recursion is a variant's own too.
bool isRecursive(const Export& e) { return e.name.find("IIR") != e.name.npos; }

// The lanes that a reduction of floats adds up in differ, and with them its rounding: its own tests know how far.
bool reducesFloats(const Export& e) {
  static const std::set<std::string> stems = {"Sum", "Mean", "StdDev", "MeanStdDev", "Norm", "NormDiff", "DotProd"};
  const size_t stem = std::strlen("qvxs");
  return stems.count(e.name.substr(stem, e.name.find('_') - stem)) != 0 && e.parameters[0].type.find('f') != std::string::npos;
}

TEST(AllVariants, GiveTheSameBits) {
  const std::vector<Library> all = libraries();
  if (all.size() < 2) GTEST_SKIP() << "one variant only";
  size_t calls = 0;
  for (const Export& e : tests::exportTable()) {
    if (!e.call || handlesRecords(e) || isRecursive(e)) continue;
    std::vector<void*> functions;
    for (const Library& library : all) functions.push_back(dlsym(library.handle, e.name.c_str()));
    const bool hasScale = e.indexOf("scaleFactor") >= 0;
    const bool hasMode = e.indexOf("rndMode") >= 0;
    for (const int len : {1, 2, 3, 7, 8, 15, 16, 17, 33, 64, 100, 257, 1021}) {
      for (int s = hasScale ? -70 : 3; s <= (hasScale ? 70 : 3); s += len == 100 ? 1 : 9) {
        for (int mode = 0; mode <= (hasMode ? 2 : 0); ++mode) {
          const auto sample = [&] { return Sample(e, static_cast<uint64_t>(len * 1000 + s), len, s, mode); };
          Sample first = sample();
          const QvxStatus status = e.call(functions[0], first);
          for (size_t i = 1; i < all.size(); ++i, ++calls) {
            Sample other = sample();
            bool equal = e.call(functions[i], other) == status;
            for (size_t b = 0; b < Sample::kBlocks && !isElementaryFloat(e) && !reducesFloats(e); ++b)
              equal = equal && first.blocks()[b] == other.blocks()[b];
            ASSERT_TRUE(equal) << e.name << " differs between " << all[0].variant << " and " << all[i].variant << ": length "
                               << len << ", scale factor " << s << ", mode " << mode;
          }
        }
      }
    }
  }
  EXPECT_GT(calls, 30000U);
}

}  // namespace
