# shellcheck shell=bash
# Tests and random calls under the sanitizers.

readonly sanitizer_options=(ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1 UBSAN_OPTIONS=print_stacktrace=1
  LSAN_OPTIONS=suppressions=tests/leaks.supp)

# Clang builds them: it instruments these templates in a fifth of GCC's time. Warnings are errors, as in lint.
build_sanitized() {  # preset, variant, targets
  need "${build_packages[@]}" "${python_packages[@]}" libgtest-dev clang libclang-rt-dev libomp-dev  # which process_test has as a user's program may
  targets="${*:3}" build "$1" -DQVXS_VARIANTS="$2" -DQVXS_EXAMPLES=OFF -DQVXS_PYTHON=ON -DCMAKE_COMPILE_WARNING_AS_ERROR=ON ||
    { count "the build of $1" 0 1; return 1; }
}

sanitize() {
  need valgrind
  local best program threaded=(threads_test process_test)
  mkdir -p build/results
  best=$(variants | tail -n 1)
  build release || { count "the build" 0 1; return 1; }
  # Valgrind 3.19 knows no AVX-512 and not all of the control word, and is fifty times as slow: the plainest variant, three calls
  # of each function, beside the others from the first of them to the last. A third of 144 s are calls that differ in one element, to
  # see that it counts: what they touch, other tests touch.
  start_tests "valgrind any_call_test" build/release/tests/any_call_test LD_LIBRARY_PATH="$PWD/build/release/variants/u8" QVXS_CALLS=3 \
    GTEST_FILTER='-*ControlWord*:*Stack*:*ReadsEachSource*' valgrind --quiet --error-exitcode=1
  # The tests as they are, with the library's instrumented form in its place: to instrument all of them takes 600 seconds of a
  # processor, and they end their vectors where their blocks end.
  if build_sanitized asan "$best" "qvxs_$best" qvxcore qvxs_python; then
    for program in build/release/tests/*_test; do
      [[ $program != */all_variants_* ]] || continue
      start_tests "asan $(basename "$program")" "$program" LD_LIBRARY_PATH="$PWD/build/asan/variants/$best:$PWD/build/asan" \
        LD_PRELOAD="$(clang -print-file-name=libclang_rt.asan-x86_64.so)" "${sanitizer_options[@]}"
    done
    # The extension instrumented as well. The interpreter keeps what it has to its end, and its own allocator would hide faults.
    need "${python_test_packages[@]}"
    pytests "asan Python" "raw vectors stems fft signal" PYTHONPATH=build/asan/python PYTHONMALLOC=malloc "${sanitizer_options[@]}" \
      ASAN_OPTIONS=detect_leaks=0:allocator_may_return_null=1 LD_PRELOAD="$(clang -print-file-name=libclang_rt.asan-x86_64.so)"
  fi
  # The plainest variant: the thread sanitizer sees accesses of up to 16 bytes, and no wider ones. Tests that make no threads
  # themselves run as they are, under the runtime of GCC, whose interface is the same: clang 14 has one for programs that it links.
  if build_sanitized tsan u8 qvxs_u8 qvxcore "${threaded[@]}"; then
    for program in "${threaded[@]}"; do
      start_tests "tsan $program" "build/tsan/tests/$program" LD_LIBRARY_PATH="$PWD/build/tsan/variants/u8" \
        TSAN_OPTIONS=ignore_noninstrumented_modules=1  # OpenMP's runtime is such a one
    done
    # Of them what divides calls: refusals, short transforms and control words, which took 51 s of 131, meet no thread.
    local -A of=([any_call_test]='-*ControlWord*:*ArgumentsInOrder*' [fft_test]='*Threads*:*Long*' [fir_test]='*')
    for program in "${!of[@]}"; do
      start_tests "tsan $program" "build/release/tests/$program" LD_LIBRARY_PATH="$PWD/build/tsan/variants/u8:$PWD/build/tsan" \
        QVXS_CALLS=10 GTEST_FILTER="${of[$program]}" LD_PRELOAD="$(g++ -print-file-name=libtsan.so)"
    done
  fi
  finish_tests
  echo "$passed passed, $failed failed"
  ((failed == 0))
}

fuzz() {
  local seconds=${1:-120}
  build_sanitized asan "$(variants | tail -n 1)" qvxs_fuzz
  mkdir -p build/fuzz/corpus
  say "fuzzing for $seconds seconds"
  env LD_LIBRARY_PATH="build/asan/variants/$(variants | tail -n 1)" QVXS_VARIANTS_DIR="$PWD/build/asan/variants" OMP_NUM_THREADS=1 \
    build/asan/tests/qvxs_fuzz -max_total_time="$seconds" -max_len=512 -timeout=60 -print_final_stats=1 -verbosity=0 -print_funcs=0 \
    -artifact_prefix=build/fuzz/ build/fuzz/corpus tests/fuzz/corpus 2>&1 |
    sed '/ Recommended dictionary/,/ End of recommended dictionary/d'
}

soak() {
  need "${build_packages[@]}" libgtest-dev
  local best
  best=$(variants | tail -n 1)
  targets="qvxs_$best qvxs_soak" build release
  LD_LIBRARY_PATH=build/release/variants/$best build/release/tests/qvxs_soak "${1:-10}"
}

# The plainest variant: most of its instructions are ones whose effect the sanitizer knows.
msan() {
  need "${build_packages[@]}" libgtest-dev clang libclang-rt-dev libomp-dev
  targets="qvxs_u8 qvxs_soak" build msan -DQVXS_VARIANTS=u8 -DQVXS_EXAMPLES=OFF
  LD_LIBRARY_PATH=build/msan/variants/u8 build/msan/tests/qvxs_soak 3
}
