# shellcheck shell=bash
# The tests: programs for each variant, and the suites beside them.

passed=0
failed=0

count() {  # what, passed, failed
  passed=$((passed + $2))
  failed=$((failed + $3))
  printf '%-44s %5d passed %5d failed\n' "$1" "$2" "$3"
}

# One test program once, beside as many others as there are processors.
started=()
start_tests() {  # what, program, its environment
  local what=$1 program=$2 results=build/results/${1// /.}
  shift 2
  while (($(jobs -rp | wc -l) >= $(nproc))); do wait -n || true; done
  rm -f "$results".*
  (
    status=0
    timeout 1200 env "$@" "$program" --gtest_brief=1 --gtest_output="xml:$results.xml" >"$results.log" 2>&1 || status=$?
    echo "$status" >"$results.status"
  ) &
  started+=("$what" "$program")
}

finish_tests() {
  local i
  wait
  for ((i = 0; i < ${#started[@]}; i += 2)); do count_tests "${started[i]}" "${started[i + 1]}"; done
  started=()
}

# A program that dies leaves no results and is one failure, as is one that has no tests.
count_tests() {  # what, program
  local what=$1 program=$2 results=build/results/${1// /.} status all bad skipped
  status=$(cat "$results.status" 2>/dev/null || echo 1)
  if ! all=$(attribute tests "$results.xml") || ((all == 0)); then
    cat "$results.log"
    echo "$program gave no results and ended with status $status"
    count "$what" 0 1
    return
  fi
  bad=$(($(attribute failures "$results.xml") + $(attribute errors "$results.xml")))
  skipped=$(($(attribute disabled "$results.xml") + $(grep -c 'result="skipped"' "$results.xml" || true)))
  ((status == 0)) || cat "$results.log"
  if ((status != 0 && bad == 0)); then bad=1; fi
  count "$what" $((all - bad - skipped)) "$bad"
  ((skipped == 0)) || say "skipped: $skipped of the tests above"
}

longest_first() {  # of the programs that are read
  sed -E 's/.*\/(any_call|threads|fft)_test$/0 &/; t; s/^/1 /' | sort -s -k 1,1 | cut -d ' ' -f 2
}

attribute() {  # name, file: an attribute of the results as a whole
  grep -m 1 -oP "^<testsuites .*?\b$1=\"\K[0-9]+" "$2" 2>/dev/null
}

# Other suites run beside the programs, each in a process of its own. What they count is read from what they print.
suites=()
start_suite() {  # function
  rm -f "build/results/$1.out"
  ("$1" || count "$1" 0 1) >"build/results/$1.out" 2>&1 &
  suites+=("$1")
}

finish_suites() {
  local suite good bad
  wait
  for suite in "${suites[@]}"; do
    cat "build/results/$suite.out"
    while read -r good bad; do
      passed=$((passed + good)) failed=$((failed + bad))
    done < <(sed -nE 's/^.* ([0-9]+) passed +([0-9]+) failed$/\1 \2/p' "build/results/$suite.out")
  done
  suites=()
}

run_all_tests() {
  local present variant program name
  present=" $(variants | tr '\n' ' ')"
  while read -r program; do
    name=$(basename "$program")
    if [[ $name == all_variants_* || $name == compile_test ]]; then
      start_tests "$name" "$program" QVXS_VARIANTS_DIR="$PWD/build/release/variants"
      continue
    fi
    for variant in u8 w3 w4; do
      [[ $present == *" $variant "* ]] || continue
      start_tests "$name $variant" "$program" LD_LIBRARY_PATH="$PWD/build/release/variants/$variant"
    done
  done < <(find build/release/tests -name '*_test' -type f -perm -u+x | sort | longest_first)
  finish_tests
  ((passed + failed > 0)) || count "programs in build/release/tests" 0 1
  for variant in w3 w4; do
    [[ $present == *" $variant "* ]] || say "skipped: $variant, which this processor lacks"
  done
}

# All that unittest finds: a module that can't be imported is one failure.
python_tests() {
  local log=build/results/python.log all bad
  PYTHONPATH=build/release/python PYTHONDONTWRITEBYTECODE=1 timeout 600 /usr/bin/python3 -m unittest discover -s python/tests >"$log" 2>&1 || true
  all=$(grep -oP '^Ran \K[0-9]+' "$log" | tail -n 1 || true)
  # Of one test there may be many, each of a part of it.
  bad=$(grep -cE '^(FAIL|ERROR): ' "$log" || true)
  if [[ -z $all || $all == 0 ]] || { ((bad == 0)) && ! grep -q '^OK' "$log"; }; then all=1 bad=1; fi
  ((bad <= all)) || bad=$all
  ((bad == 0)) || cat "$log"
  count "Python" $((all - bad)) "$bad"
}

# Those of the upper level: all with the variant that the loader takes, vectors with the others, too.
scipy_tests() {
  local variant best
  best=$(variants | tail -n 1)
  pytests "Python beside SciPy" "vectors stems fft signal dask docs examples" PYTHONPATH=build/release/python
  for variant in $(variants); do
    [[ $variant != "$best" ]] || continue
    pytests "Python vectors $variant" "vectors stems" PYTHONPATH=build/release/python LD_LIBRARY_PATH="build/release/variants/$variant"
  done
}

pytests() {  # name, modules, environment
  local log=build/results/${1// /-}.log good bad modules
  read -ra modules <<<"$2"
  modules=("${modules[@]/#/python/tests/test_}")
  env "${@:3}" timeout 900 /usr/bin/python3 -B -m pytest -q -p no:cacheprovider --tb=short \
    "${modules[@]/%/.py}" >"$log" 2>&1 || true
  good=$(tail -n 1 "$log" | grep -oP '[0-9]+(?= passed)' || echo 0)
  bad=$(tail -n 1 "$log" | grep -oP '[0-9]+(?= (failed|error))' | head -n 1 || true)
  ((good > 0)) || bad=${bad:-1}
  ((${bad:-0} == 0)) || cat "$log"
  count "$1" "$good" "${bad:-0}"
}

# A user's program against an installed tree that was moved after the installation.
consumers() {
  local tree=$PWD/build/consumer language
  rm -rf "$tree"
  mkdir -p "$tree"
  cmake --install build/release --prefix "$tree/first" >"$tree/install.log" || { count "installation" 0 1; return; }
  mv "$tree/first" "$tree/installed"
  for language in C CXX CXX20; do
    consumer "CMake package, $language" with_cmake $language
    consumer "pkg-config, $language" with_pkg_config $language
  done
  consumer "Python package, installed" python_installed Python
  consumer "README, C" readme c
  consumer "README, C++" readme cpp
}

consumer() {  # what, how, language
  local log=$tree/$2-$3.log
  if "$2" "$3" >"$log" 2>&1; then
    count "$1" 1 0
  else
    cat "$log"
    count "$1" 0 1
  fi
}

with_cmake() {
  cmake -G Ninja -S tests/consumer -B "$tree/cmake-$1" -DCONSUMER_LANGUAGE="$1" -DCMAKE_PREFIX_PATH="$tree/installed" &&
    cmake --build "$tree/cmake-$1" && takes_every_variant "$tree/cmake-$1/consumer"
}

with_pkg_config() {
  local flags compiler=(cc -std=c99) source=consumer.c
  if [[ $1 == CXX ]]; then compiler=(c++ -std=c++11) source=consumer.cpp; fi
  if [[ $1 == CXX20 ]]; then compiler=(c++ -std=c++20) source=consumer20.cpp; fi
  flags=$(PKG_CONFIG_PATH=$(dirname "$(find "$tree/installed" -name qvxs.pc)") pkg-config --cflags --libs 'qvxs >= 7.0' qvxcore) || return
  # shellcheck disable=SC2086  # several flags
  "${compiler[@]}" -Wall -Wextra -pedantic -Werror "tests/consumer/$source" $flags -o "$tree/pkg-config-$1" &&
    takes_every_variant "$tree/pkg-config-$1"
}

python_installed() {
  local found
  found=$(PYTHONPATH=$(dirname "$(find "$tree/installed" -name qvxs -path '*-packages/*')") /usr/bin/python3 -c \
    'import qvxs; print(qvxs.raw.qvxsGetLibVersion()["cpuTag"])')
  [[ $found == "$(variants | tail -n 1)" ]]
}

# What the README shows, built as it says; the C program prints what its comment promises. The C++ lines are the inside of a function.
readme() {  # language
  local folder=$tree/readme-$1 lines command packages libraries
  mkdir -p "$folder"
  # shellcheck disable=SC2016  # fences of code
  lines=$(sed -n '/^```'"$1"'$/,/^```$/{/^```/!p}' README.md)
  command=$(grep -m 1 '^    cc ' README.md)
  packages=$(dirname "$(find "$tree/installed" -name qvxs.pc)")
  libraries=$(dirname "$(find "$tree/installed" -name libqvxcore.so)")
  if [[ $1 == c ]]; then
    echo "$lines" >"$folder/program.c"
  else
    { grep '^#include' <<<"$lines" && echo 'int main() {' && grep -v '^#include' <<<"$lines" && echo '}'; } >"$folder/program.cpp"
    command="c++ -std=c++20 ${command/cc program.c/program.cpp}"
  fi
  (cd "$folder" && PKG_CONFIG_PATH=$packages bash -ec "$command") || return
  local shown printed
  shown=$(grep -oP 'printf.*/\*\K.*(?=\*/)' <<<"$lines" || true)
  printed=$(LD_LIBRARY_PATH=$libraries "$folder/program") && [[ $(xargs <<<"$printed") == "$(xargs <<<"$shown")" ]]
}

# The loader is told to know no more than a level: each level must get its own variant.
takes_every_variant() {
  local variant libraries
  local -A mask=([u8]=x86-64-v2 [w3]=x86-64-v3:x86-64-v2 [w4]=x86-64-v4:x86-64-v3:x86-64-v2)
  libraries=$(dirname "$(find "$tree/installed" -name libqvxcore.so)")
  for variant in $(variants); do
    LD_LIBRARY_PATH=$libraries /lib64/ld-linux-x86-64.so.2 --glibc-hwcaps-mask "${mask[$variant]}" "$1" "$variant" || return
  done
  LD_LIBRARY_PATH=$libraries "$1" "$variant"
}

# No dead link, and a place for every export, in the site and in the manual pages.
pages() {
  local log=build/results/pages.log
  if site build/release build/results/site >"$log" 2>&1 && PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 tools/docs/check.py build/results/site \
    build/release/man build/release/variants/u8/libqvxs.so.7 build/release/libqvxcore.so.1 >>"$log" 2>&1; then
    count "reference site and manual pages" 1 0
  else
    cat "$log"
    count "reference site and manual pages" 0 1
  fi
}

test_all() {
  local suite
  need "${build_packages[@]}" "${example_packages[@]}" "${python_packages[@]}" "${python_test_packages[@]}" "${page_packages[@]}" libgtest-dev
  mkdir -p build/results
  if build release -DQVXS_PYTHON=ON; then
    for suite in scipy_tests python_tests consumers pages; do start_suite $suite; done
    run_all_tests
    finish_suites
  else
    count "the build" 0 1
  fi
  echo "$passed passed, $failed failed"
  ((failed == 0))
}

accuracy() {
  need "${build_packages[@]}" "${example_packages[@]}" libgtest-dev
  build release
  local variant
  for variant in $(variants); do LD_LIBRARY_PATH=build/release/variants/$variant build/release/tests/qvxs_accuracy; done
}
