# shellcheck shell=bash
# Measurements, and the pages that are made of them.

# FFTW as a careful user builds it, from the distribution's source package for the processor at hand; where there is no such package,
# the packaged one is the only one. The source entry and its lists stay in the build's folder.
build_fftw() {  # variant: the best for this processor as it is, others for what they may use
  local variant=$1 folder=$PWD/build/fftw level kind flags=(--enable-shared --disable-static --disable-fortran --disable-doc)
  [[ ! -e $folder/$variant/lib/libfftw3f.so.3 ]] || return 0
  command -v apt-get >/dev/null || return 1
  need dpkg-dev gcc make
  local apt=(-qq -o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$folder/apt" -o "Dir::State::Lists=$folder/apt/lists" -o "Dir::Cache=$folder/apt")
  mkdir -p "$folder"/apt/{lists,archives}/partial
  if [[ -s /etc/apt/sources.list ]]; then sed -nE 's/^deb( .*debian.*)/deb-src\1/p' /etc/apt/sources.list >"$folder/apt/debian.list"; fi
  if [[ -e /etc/apt/sources.list.d/debian.sources ]]; then
    sed -E 's/^Types:.*/Types: deb-src/' /etc/apt/sources.list.d/debian.sources >"$folder/apt/debian.sources"
  fi
  [[ -d $(compgen -G "$folder/fftw3-*/") ]] ||
    (cd "$folder" && apt-get "${apt[@]}" update && apt-get "${apt[@]}" source fftw3) >"$folder/source.log" 2>&1 || return 1
  case $variant in
    u8) level=-mssse3 flags+=(--enable-sse2) ;;
    w3) level=-march=x86-64-v3 flags+=(--enable-avx2) ;;
    w4) level=-march=native flags+=(--enable-avx2 --enable-avx512) ;;
  esac
  for kind in double float; do
    say "building FFTW of $kind for $variant"
    mkdir -p "$folder/$variant/$kind"
    if [[ $kind == float ]]; then flags+=(--enable-float); fi
    (cd "$folder/$variant/$kind" && sh "$folder"/fftw3-*/configure --prefix="$folder/$variant" "${flags[@]}" \
      CFLAGS="-O3 $level -fomit-frame-pointer -fstrict-aliasing -ffast-math" LDFLAGS=-Wl,-Bsymbolic &&
      make -j"$(nproc)" && make install) >"$folder/$variant/$kind.log" 2>&1 || return 1
  done
}

bench() {
  if [[ ${1:-} == --python ]]; then
    bench_python
    return
  fi
  need "${build_packages[@]}" libbenchmark-dev libcli11-dev libvolk2-dev libsleef-dev libfftw3-dev libkissfft-dev libliquid-dev
  local best variant
  best=$(variants | tail -n 1) variant=$best
  if [[ ${1:-} == --variant ]]; then
    variant=${2:-}
    [[ $variant && " $(variants | tr '\n' ' ')" == *" $variant "* ]] || die "this processor has no variant \"$variant\""
    shift 2
  fi
  local program=build/bench/bench/qvxs_bench_$variant fftw=$PWD/build/fftw/$variant/lib targets="qvxs_$variant qvxs_bench_$variant"
  if [[ ${1:-} == --company ]]; then targets+=" qvxs_company"; fi
  build bench
  build_fftw "$variant" || say "no FFTW built for $variant (build/fftw has logs): the packaged one alone"
  hold_to "$variant"
  export LD_LIBRARY_PATH=build/bench/variants/$variant
  # The packaged one takes the AVX that it finds.
  if [[ $variant == u8 ]]; then LD_LIBRARY_PATH+=:$fftw; else export QVXS_BUILT_FFTW=$fftw; fi
  if [[ ${1:-} == --other ]]; then
    report "$program" "${2:-.}" performance-other --brief
  elif [[ ${1:-} == --report ]]; then
    if [[ $variant == "$best" ]]; then report "$program" "${2:-.}" performance; else report "$program" "${2:-.}" "performance-$variant" --brief; fi
  elif [[ ${1:-} == --company ]]; then
    build/bench/bench/qvxs_company | tee build/company.md
    sed -i -e '/^| function/,$d' docs/threads.md
    cat build/company.md >>docs/threads.md
  else
    say "measuring variant $variant"
    "$program" "$@"
  fi
}

# The C library's own choice of instructions, of which memcpy and its like are peers.
hold_to() {  # variant
  case $1 in
    u8) export GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX512F,-AVX512VL,-AVX2,-AVX,-FMA,-AVX_Fast_Unaligned_Load ;;
    w3) export GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX512F,-AVX512VL ;;
  esac
}

bench_python() {
  local under
  python_package
  need python3-scipy python3-pyfftw
  read -ra under <<<"${QVXS_MEASURE:-taskset -c $(($(nproc --all) - 1))}"
  say "measuring from Python, into docs/performance-python.md"
  PYTHONPATH=build/python OPENBLAS_NUM_THREADS=1 "${under[@]}" /usr/bin/python3 python/bench/performance.py docs/performance-python.md
}

# One file a family, so that one can be measured anew, and others use the processor in between.
report() {  # program, families, page, --brief
  need gnuplot-nox
  local program=$1 page=$3 brief=("${@:4}") folder=build/report family under
  if [[ $page != performance ]]; then folder+=/${page#*-}; fi
  read -ra under <<<"${QVXS_MEASURE:-taskset -c $(($(nproc --all) - 1))}"
  mkdir -p "$folder"
  for family in $("$program" --families | grep -E "$2"); do
    say "measuring $family"
    "${under[@]}" "$program" --family "$family" "${brief[@]}" --output "$folder/$family.tsv" >"$folder/$family.log"
  done
  say "writing docs/$page.md"
  "$program" --page "$folder" "${brief[@]}" --output "docs/$page.md"
  if ((${#brief[@]} == 0)); then (cd docs/performance && gnuplot ../../bench/frame/plots.gp); fi
}
