# shellcheck shell=bash
# What is installed: the Python package, the reference site, the packages.

# The reference site out of a build with examples, which run to show what they print.
site() {  # build, output
  PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 tools/docs/site.py --version "$(sed -nE 's/^project\(.* VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)" \
    --output "$2" --build "$1" --variant "$(variants | tail -n 1)"
}

# One build with the tests, whose libraries it takes.
python_package() {
  need "${build_packages[@]}" "${example_packages[@]}" "${python_packages[@]}" libgtest-dev
  targets=qvxs_python build release -DQVXS_PYTHON=ON
  ln -sfn release/python build/python
  PYTHONPATH=build/python /usr/bin/python3 -c 'import qvxs; print("variant", qvxs.raw.qvxsGetLibVersion()["cpuTag"])'
  say "PYTHONPATH=$PWD/build/python /usr/bin/python3 imports it"
}

install_to() {
  local prefix=${1:-}
  [[ -n $prefix ]] || die "install needs a prefix, such as /usr/local"
  need "${build_packages[@]}" "${python_packages[@]}"
  [[ $prefix == /* ]] || prefix=$from/$prefix
  build install -DCMAKE_INSTALL_PREFIX="$prefix" -DQVXS_PYTHON=ON
  say "installing to $prefix"
  cmake --install build/install
}

docs() {
  need "${build_packages[@]}" "${example_packages[@]}" "${page_packages[@]}" libgtest-dev
  targets="qvxs_u8 qvxs_w3 qvxs_w4 examples/all man" build release
  site build/release build/docs
  say "the reference site is build/docs/index.html"
}

# The packages have the libraries where Debian has them, which the build keeps only for the time of this.
package() {
  need dpkg-dev file "${python_packages[@]}"
  docs
  targets=qvxs_python build release -DQVXS_PYTHON=ON
  rm -rf build/packages
  cmake build/release -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_INSTALL_LIBDIR="lib/$(dpkg-architecture -q DEB_HOST_MULTIARCH)" \
    -DQVXS_SITE="$PWD/build/docs" >build/package.log
  (cd build/release && cpack) >>build/package.log 2>&1 || { cat build/package.log; return 1; }
  cmake build/release -UCMAKE_INSTALL_PREFIX -UCMAKE_INSTALL_LIBDIR -UQVXS_SITE >>build/package.log
  rm -rf build/packages/_CPack_Packages
  ls -l build/packages
}

prove_packages() {
  need lintian mmdebstrap
  local system=$PWD/build/root
  compgen -G "build/packages/libqvxs7_*.deb" >/dev/null || package
  lintian --fail-on error "$PWD"/build/packages/*.deb
  if [[ ! -d $system ]]; then
    say "installing a Debian system into build/root"
    mmdebstrap --variant=minbase --include=gcc,g++,cmake,ninja-build,pkg-config,man-db,python3-numpy bookworm "$system"
  fi
  rm -rf "$system/packages" "$system/consumer"
  cp -r build/packages "$system/packages"
  cp -r tests/consumer "$system/consumer"
  say "installing, using and removing the packages in build/root"
  chroot "$system" /bin/bash -s "$(variants | tail -n 1)" <tests/consumer/packages.sh
}
