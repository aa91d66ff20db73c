#include "peers/volk.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

// Parts of the names of implementations that need more instructions than this file is compiled for. "orc" detects the processor.
#if defined __AVX2__
constexpr const char* kAbove[] = {"avx512", "orc"};
#else
constexpr const char* kAbove[] = {"avx", "sse4", "orc"};
#endif

// Of the others, the one that VOLK prefers: the most demanding one.
std::string best(const volk_func_desc_t& kernel, bool aligned) {
  std::string name = "generic";
  int most = -1;
  for (size_t i = 0; i < kernel.n_impls; ++i) {
    const std::string candidate = kernel.impl_names[i];
    const auto contained = [&](const char* part) { return candidate.find(part) != std::string::npos; };
    if (kernel.impl_alignment[i] > aligned || kernel.impl_deps[i] <= most ||
        std::any_of(std::begin(kAbove), std::end(kAbove), contained))
      continue;
    name = candidate;
    most = kernel.impl_deps[i];
  }
  return name;
}

}  // namespace

void volk::hold() {
  std::string folder = (std::filesystem::temp_directory_path() / "volk-XXXXXX").string();
  if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("cannot make " + folder);
  std::filesystem::create_directory(folder + "/volk");
  std::ofstream preferences(folder + "/volk/volk_config");
  for (const char* kernel : {QVXS_VOLK_KERNELS}) {
    const auto describe =
        reinterpret_cast<volk_func_desc_t (*)()>(dlsym(RTLD_DEFAULT, (std::string(kernel) + "_get_func_desc").c_str()));
    if (describe == nullptr) throw std::runtime_error(std::string("VOLK does not describe ") + kernel);
    preferences << kernel << ' ' << best(describe(), true) << ' ' << best(describe(), false) << '\n';
  }
  preferences.close();
  setenv("VOLK_CONFIGPATH", folder.c_str(), 1);
  volk_32f_x2_add_32f(nullptr, nullptr, nullptr, 0);  // reads them
  std::filesystem::remove_all(folder);
}
