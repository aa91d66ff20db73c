# shellcheck shell=bash
# Formatting, static analysis, the binary interface.

# Folders include what stands before them in this list, never after.
folders_in_order() {
  local order=" frame math vector convert stats transform fft dft convolution fir iir lms dct hilbert correlation sample generate window wavelet goertzel sort median decode helpers " bad=0 from to
  while IFS=: read -r file include; do
    from=${file#src/} from=${from%%/*} to=${include#*\"} to=${to%%/*}
    [[ $order == *" $from "* && $order == *" $to "* ]] || { echo "$file: no place in the list for $from or $to"; bad=1; continue; }
    [[ ${order%% "$to" *} != *" $from "* && ${order%% "$to" *} != *" $from" ]] || { echo "$file: includes $to, which comes later"; bad=1; }
  done < <(grep -rHoE '^#include "[a-z]+/[^"]+"' src)
  return $bad
}

# Names and types of all that the libraries export. A difference is an error; where it is meant, it is recorded.
abi() {
  need "${build_packages[@]}" abigail-tools xz-utils
  local bad=0 library
  mkdir -p build/abi
  cc -g -fPIC -shared -Iinclude tests/abi/interface.c -o build/abi/qvxs.so
  c++ -std=c++20 -g -fPIC -shared -Wl,--version-script=core/qvxcore.map -I. -Iinclude core/*.cpp -o build/abi/qvxcore.so
  for library in qvxs qvxcore; do
    if [[ ${1:-} == --record ]]; then
      abidw --no-show-locs --no-comp-dir-path --no-corpus-path --no-elf-needed --drop-private-types --headers-dir include \
        --out-file "build/abi/$library.abi" "build/abi/$library.so"
      xz --keep --force --stdout "build/abi/$library.abi" >"tests/abi/$library.abi.xz"
    else
      xz --decompress --stdout "tests/abi/$library.abi.xz" >"build/abi/$library.abi"
      abidiff --no-show-locs "build/abi/$library.abi" "build/abi/$library.so" || bad=1
    fi
  done
  return $bad
}

lint() {
  need "${build_packages[@]}" "${example_packages[@]}" clang clang-format clang-tidy libomp-dev shellcheck python3
  local bad=0 sources
  mapfile -t sources < <(find src core tests bench examples python -name '*.cpp' -o -name '*.c' -o -name '*.h' | sort)
  sources+=(include/qvx/*.hpp)
  say "clang-format"
  clang-format --dry-run -Werror "${sources[@]}" || bad=1
  say "folders"
  folders_in_order || bad=1
  say "binary interface"
  abi || bad=1
  say "the C++ face beside the headers"
  tools/cpp_face.py --check || bad=1
  mkdir -p build/cpp
  { tools/cpp_face.py --calls build/cpp/calls.cpp && clang++ -std=c++20 -Iinclude build/cpp/calls.cpp -o build/cpp/calls && build/cpp/calls; } || bad=1
  say "shellcheck"
  shellcheck -x -a run && shellcheck .ci/run tests/consumer/packages.sh || bad=1
  say "checking with clang, warnings are errors"
  # w3 is left to the other compiler's warnings, w4 to the sanitizers' build.
  cmake --preset clang -B build/lint -DQVXS_VARIANTS=u8 -DCMAKE_BUILD_TYPE=Debug -DQVXS_TESTS=OFF -DQVXS_UNITY=OFF -DCMAKE_COMPILE_WARNING_AS_ERROR=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >build/lint.log || { cat build/lint.log; return 1; }
  # All of a compilation but its code: templates are instantiated, and warned of.
  sed -nE '/"command"/{/\/(src|core)\//{s/^ *"command": "(.*)",?$/\1/; s/\\"/"/g; s/ -o [^ ]+ -c / -fsyntax-only /; p}}' build/lint/compile_commands.json |
    (cd build/lint && xargs -P "$(nproc)" -d '\n' -n 1 bash -c) || bad=1
  say "clang-tidy"
  printf '%s\n' examples/support/*.cpp core/*.cpp examples/[!s]*/*.cpp examples/s[!u]*/*.cpp src/frame/memory.cpp src/vector/copy_bits.cpp |
    xargs -P "$(nproc)" -n 1 clang-tidy --quiet -p build/lint || bad=1
  return $bad
}
