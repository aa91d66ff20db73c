// What the library says of itself, its symbols, and its memory.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <link.h>
#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace {

std::string libraryPath() {
  Dl_info info;
  EXPECT_NE(dladdr(reinterpret_cast<void*>(&qvxsGetLibVersion), &info), 0);
  // The address of a function may be that of the program's own entry to it; the record is in the library for certain.
  EXPECT_NE(dladdr(qvxsGetLibVersion(), &info), 0);
  return info.dli_fname;
}

TEST(Identity, VersionRecord) {
  const QvxLibraryVersion* v = qvxsGetLibVersion();
  EXPECT_EQ(v, qvxsGetLibVersion());
  EXPECT_EQ(v->verMajor, 7);
  EXPECT_EQ(v->verMinor, 0);
  EXPECT_EQ(v->buildMajor, 205);
  EXPECT_EQ(v->buildMinor, 1058);
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
  for (const auto& header : std::filesystem::directory_iterator(QVXS_INCLUDE_DIR "/qvx")) {
    if (header.path().filename().string().rfind("qvxs_", 0) != 0) continue;
    std::ifstream file(header.path());
    for (std::string line; std::getline(file, line);) {
      const size_t api = line.find("QVXS_API(");
      if (api == std::string::npos) continue;
      const size_t name = line.find("qvxs", api);
      declared.insert(line.substr(name, line.find(',', name) - name));
    }
  }
  std::set<std::string> exported;
  FILE* nm = popen(("nm -D --defined-only " + libraryPath()).c_str(), "r");
  ASSERT_NE(nm, nullptr);
  char type;
  char symbol[256];
  while (std::fscanf(nm, "%*s %c %255s", &type, symbol) == 2) {
    if (type != 'A') exported.insert(std::string(symbol).substr(0, std::string(symbol).find('@')));  // A: the version's own node
  }
  EXPECT_EQ(pclose(nm), 0);
  EXPECT_GE(declared.size(), 346U);
  EXPECT_EQ(exported, declared);
}

template <class T> void expectVectors(T* (*allocate)(int)) {
  EXPECT_EQ(allocate(0), nullptr);
  EXPECT_EQ(allocate(-1), nullptr);
  EXPECT_EQ(allocate(INT32_MIN), nullptr);
  for (const int len : {1, 3, 1000}) {
    T* v = allocate(len);
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(v) % 64, 0U);
    std::memset(static_cast<void*>(v), 0xA5, sizeof(T) * static_cast<size_t>(len));
    qvxsFree(v);
  }
}

TEST(Memory, VectorsOfAllTypes) {
  expectVectors(qvxsMalloc_8u), expectVectors(qvxsMalloc_8s), expectVectors(qvxsMalloc_8sc);
  expectVectors(qvxsMalloc_16u), expectVectors(qvxsMalloc_16s), expectVectors(qvxsMalloc_16sc);
  expectVectors(qvxsMalloc_32u), expectVectors(qvxsMalloc_32s), expectVectors(qvxsMalloc_32sc);
  expectVectors(qvxsMalloc_64s), expectVectors(qvxsMalloc_64sc), expectVectors(qvxsMalloc_32f);
  expectVectors(qvxsMalloc_32fc), expectVectors(qvxsMalloc_64f), expectVectors(qvxsMalloc_64fc);
  qvxsFree(nullptr);
}

// 2^30 elements: two bytes each overflow the 32-bit size and are refused, four bytes each are only a matter of memory.
TEST(Memory, SizesOfTwoByteElementsAreFormedIn32Bits) {
  constexpr int kMany = 1 << 30;
  EXPECT_EQ(qvxsMalloc_16u(kMany), nullptr);
  EXPECT_EQ(qvxsMalloc_16s(kMany), nullptr);
  EXPECT_EQ(qvxsMalloc_8sc(kMany), nullptr);
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
  EXPECT_EQ(qvxMalloc(0), nullptr);
  EXPECT_EQ(qvxMalloc(-8), nullptr);
  EXPECT_EQ(qvxMalloc(INT64_MAX), nullptr);
  const int byDefault = ownGetNumThreads();
  EXPECT_GE(byDefault, 1);
  qvxSetNumThreads(byDefault + 3);
  EXPECT_EQ(ownGetNumThreads(), byDefault + 3);
  qvxSetNumThreads(0);
  EXPECT_EQ(ownGetNumThreads(), byDefault);
}

}  // namespace
