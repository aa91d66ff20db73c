// What the library says of itself, its symbols, and its memory.
#include <gtest/gtest.h>
#include <link.h>
#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <set>

#include "support/exports.h"
#include "support/library.h"
#include "support/sanitizer.h"

namespace {

std::string libraryPath() { return tests::fileOf(qvxsGetLibVersion()); }

TEST(Identity, VersionRecord) {
  const QvxLibraryVersion* v = qvxsGetLibVersion();
  EXPECT_EQ(v, qvxsGetLibVersion());
  const std::array numbers = {v->verMajor, v->verMinor, v->buildMajor, v->buildMinor};
  EXPECT_EQ(numbers, (std::array{7, 0, 205, 1058}));
  EXPECT_STREQ(v->verText, "7.0 build 205.58");
  EXPECT_STREQ(v->buildDate, "Apr 19 2011");
  EXPECT_EQ(v->cpuTag[2], 0);
  EXPECT_EQ(v->cpuTag[3], 0);
  const std::string tag = v->cpuTag;
  EXPECT_EQ("libqvxs" + tag + "-7.0.dylib", v->libFile);
  // Tests name the variant by the folder they load it from.
  EXPECT_NE(libraryPath().find("/" + tag + "/"), std::string::npos) << libraryPath() << " is " << tag;
}

TEST(Identity, DynamicSymbolsAreTheDeclaredExports) {
  std::set<std::string> declared;
  for (const tests::Export& e : tests::exportTable()) declared.insert(e.name);
  std::set<std::string> exported;
  FILE* nm = popen(("nm -D --defined-only " + libraryPath()).c_str(), "r");
  ASSERT_NE(nm, nullptr);
  char type;
  char symbol[256];
  while (std::fscanf(nm, "%*s %c %255s", &type, symbol) == 2) {
    if (type != 'A') exported.insert(std::string(symbol).substr(0, std::string(symbol).find('@')));  // A: the version's own node
  }
  EXPECT_EQ(pclose(nm), 0);
  EXPECT_EQ(declared.size(), 2083U);
  EXPECT_EQ(exported, declared);
}

// What the library imports: nothing to allocate with but the core's functions, nothing to print, to stop the program or to read
// files.
TEST(Imports, AreFew) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers import much";
  const std::set<std::string> known = {"qvxMalloc",
                                       "qvxFree",
                                       "ownGetNumThreads",
                                       "ownRunParts",
                                       "memcpy",
                                       "memmove",
                                       "memset",
                                       "sysconf",
                                       "__gmon_start__",
                                       "__gxx_personality_v0",
                                       "__cxa_finalize",
                                       "_Unwind_Resume",
                                       "__memcpy_chk",
                                       "__memmove_chk",
                                       "__memset_chk",
                                       "__stack_chk_fail",
                                       "sin",
                                       "cos",
                                       "atan2",
                                       "ldexp",
                                       "log1p",
                                       "sinl",
                                       "cosl",
                                       "tanl",
                                       "sincosl",
                                       "sinhl",
                                       "coshl",
                                       "asinhl",
                                       "logl",
                                       "log10l",
                                       "expm1l",
                                       "powl",
                                       "sqrtl",
                                       "cabsl",
                                       "ldexpl"};
  FILE* nm = popen(("nm -D --undefined-only " + libraryPath()).c_str(), "r");
  ASSERT_NE(nm, nullptr);
  char line[256];
  size_t imports = 0;
  while (std::fscanf(nm, " %*s %255s", line) == 1) {
    const std::string name(line, std::strcspn(line, "@"));
    const bool isCompilers = std::strstr(line, "@GCC_") != nullptr || name.rfind("_ITM_", 0) == 0;
    EXPECT_TRUE(isCompilers || known.count(name) != 0) << line;
    ++imports;
  }
  pclose(nm);
  EXPECT_GT(imports, 5U);
}

// Relocations are done and locked when the library is loaded, and its stack does not execute.
TEST(Identity, IsHardened) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers come without";
  const auto tells = [](const std::string& option, const char* what) {
    return std::system(("readelf -W " + option + " " + libraryPath() + " | grep -q '" + what + "'").c_str()) == 0;
  };
  EXPECT_TRUE(tells("-l", "GNU_RELRO"));
  EXPECT_TRUE(tells("-d", "BIND_NOW\\|NOW"));
  EXPECT_TRUE(tells("-l", "GNU_STACK.* RW "));
  EXPECT_TRUE(tells("--dyn-syms", " qvxsAdd_32f@@"));
}

template <class... T> void expectVectors(T* (*... allocate)(int)) {
  const auto expect = [](auto one) {
    for (const int len : {0, -1, INT32_MIN}) EXPECT_EQ(one(len), nullptr);
    for (const int len : {1, 3, 1000}) {
      auto* v = one(len);
      ASSERT_NE(v, nullptr);
      EXPECT_EQ(reinterpret_cast<uintptr_t>(v) % 64, 0U);
      std::memset(static_cast<void*>(v), 0xA5, sizeof(*v) * static_cast<size_t>(len));
      qvxsFree(v);
    }
  };
  (expect(allocate), ...);
}

TEST(Memory, VectorsOfAllTypes) {
  expectVectors(qvxsMalloc_8u, qvxsMalloc_8s, qvxsMalloc_8sc, qvxsMalloc_16u, qvxsMalloc_16s, qvxsMalloc_16sc, qvxsMalloc_32u,
                qvxsMalloc_32s, qvxsMalloc_32sc, qvxsMalloc_64s, qvxsMalloc_64sc, qvxsMalloc_32f, qvxsMalloc_32fc, qvxsMalloc_64f,
                qvxsMalloc_64fc);
  qvxsFree(nullptr);
}

// 2^30 elements: two bytes each overflow the 32-bit size and are refused, four bytes each are only a matter of memory.
TEST(Memory, SizesOfTwoByteElementsAreFormedIn32Bits) {
  constexpr int kMany = 1 << 30;
  EXPECT_TRUE(qvxsMalloc_16u(kMany) == nullptr && qvxsMalloc_16s(kMany) == nullptr && qvxsMalloc_8sc(kMany) == nullptr);
  Qvx16u* most = qvxsMalloc_16u(kMany - 1);
  EXPECT_NE(most, nullptr);
  qvxsFree(most);
  Qvx32f* wide = qvxsMalloc_32f(kMany);  // untouched pages cost nothing
  EXPECT_NE(wide, nullptr);
  qvxsFree(wide);
}

TEST(Core, AlignsAndCountsThreads) {
  char block[256];
  for (const int alignment : {1, 16, 64}) {
    for (char* p = block; p < block + 70; ++p) {
      auto* aligned = static_cast<char*>(qvxAlignPtr(p, alignment));
      EXPECT_EQ(reinterpret_cast<uintptr_t>(aligned) % static_cast<unsigned>(alignment), 0U);
      EXPECT_GE(aligned, p);
      EXPECT_LT(aligned, p + alignment);
    }
  }
  for (const int64_t bytes : {int64_t{0}, int64_t{-8}, INT64_MAX}) EXPECT_EQ(qvxMalloc(bytes), nullptr);
  const int byDefault = ownGetNumThreads();
  EXPECT_GE(byDefault, 1);
  qvxSetNumThreads(byDefault + 3);
  EXPECT_EQ(ownGetNumThreads(), byDefault + 3);
  qvxSetNumThreads(0);
  EXPECT_EQ(ownGetNumThreads(), byDefault);
}

}  // namespace
