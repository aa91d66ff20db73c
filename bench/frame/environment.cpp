#include "frame/environment.h"

#include <fftw3.h>
#include <gnu/libc-version.h>
#include <liquid/liquid.h>
#include <sys/utsname.h>
#include <unistd.h>
#include <volk/constants.h>
#include <volk/volk.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

#include "qvx/qvxs.h"

namespace bench {

namespace {

std::string cpuinfo(const std::string& key) {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(key) && line[key.size()] == '\t') return line.substr(std::min(line.size(), line.find(':') + 2));
  }
  return "unknown";
}

// Numbers say more than a brand name.
std::string processor() {
  const bool virtualMachine = cpuinfo("flags").find(" hypervisor") != std::string::npos;
  return std::string("family ") + cpuinfo("cpu family") + ", model " + cpuinfo("model") + ", stepping " + cpuinfo("stepping") +
         (virtualMachine ? ", in a virtual machine" : "");
}

// "48K L1 data, 1024K L2, 32768K L3 of processors 0-1"
std::string caches() {
  const std::filesystem::path folder = "/sys/devices/system/cpu/cpu0/cache";
  std::string all;
  for (int i = 0; std::filesystem::exists(folder / ("index" + std::to_string(i))); ++i) {
    const auto property = [&](const char* name) {
      std::ifstream file(folder / ("index" + std::to_string(i)) / name);
      std::string text;
      std::getline(file, text);
      return text;
    };
    if (property("type") == "Instruction") continue;
    const std::string sharers = property("shared_cpu_list");
    all += (all.empty() ? "" : ", ") + property("size") + " L" + property("level");
    if (property("type") == "Data") all += " data";
    if (sharers != "0") all += " of processors " + sharers;
  }
  return all.empty() ? "unknown" : all;
}

std::string system() {
  utsname names;
  uname(&names);
  return std::string(names.sysname) + " " + names.release + ", glibc " + gnu_get_libc_version();
}

// For libraries that do not report their version themselves.
std::string packageVersion(const std::string& package) {
  const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(("pkg-config --modversion " + package).c_str(), "r"), pclose);
  std::array<char, 64> text{};
  if (!output || !std::fgets(text.data(), text.size(), output.get())) return "unknown";
  const std::string line = text.data();
  return line.substr(0, line.find('\n'));
}

// The packaged one and, where there is one, the one built by the bench.
std::string builtFftw() {
  if (std::getenv("QVXS_BUILT_FFTW") == nullptr) return "";
  const bool highest = std::string(QVXS_BENCH_VARIANT) == "w4";
  return std::string("; *built*: from the source package, for ") + (highest ? "this processor" : "AVX2") +
         (highest ? "; *patient*: with FFTW_PATIENT" : "");
}

}  // namespace

Context environment() {
  return {
      {"Processor", processor()},
      {"Processors", std::to_string(sysconf(_SC_NPROCESSORS_ONLN))},
      {"Caches", caches()},
      {"System", system()},
      {"Library", std::string("variant " QVXS_BENCH_VARIANT " of version ") + qvxsGetLibVersion()->verText},
      {"Compiler", "GCC " __VERSION__ ", the library with " QVXS_LIBRARY_FLAGS},
      {"Plain loops", QVXS_BENCH_FLAGS ", reductions and filters with -ffast-math, \"-Ofast\" with that"},
      {"FFTW", std::string(fftwf_version) + ", planned with FFTW_MEASURE" + builtFftw()},
      {"VOLK", std::string(volk_version()) + ", machine " + volk_get_machine() + ", kernels up to the level of the variant"},
      {"SLEEF", packageVersion("sleef") + ", functions of 1.0 ULP in the registers of the variant"},
      {"liquid-dsp", liquid_libversion()},
      {"kissfft", packageVersion("kissfft-float")},
  };
}

}  // namespace bench
