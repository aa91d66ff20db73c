# shellcheck shell=bash
# In a system of its own, with the packages in /packages: a user's programs find all they need where the system has it, and nothing is
# left when the packages are gone. The argument is the variant that this processor takes.
set -euo pipefail
export LC_ALL=C.UTF-8
rm -rf /build-* /program
find /usr /etc /lib /var/lib/dpkg/info | sort >/before
dpkg --install /packages/*.deb >/dev/null
for language in C CXX; do
  cmake -G Ninja -S /consumer -B "/build-$language" -DCONSUMER_LANGUAGE=$language >/dev/null
  cmake --build "/build-$language" >/dev/null
  "/build-$language/consumer" "$1"
done
# shellcheck disable=SC2046  # several flags
cc -std=c99 /consumer/consumer.c $(pkg-config --cflags --libs 'qvxs >= 7.0' qvxcore) -o /program
/program "$1"
for level in x86-64-v2:u8 x86-64-v3:x86-64-v2:w3; do
  [[ $1 == u8 || $1 == w3 && $level != *:u8 ]] || /lib64/ld-linux-x86-64.so.2 --glibc-hwcaps-mask "${level%:*}" /program "${level##*:}"
done
man --warnings qvxsAdd_16s_Sfs >/dev/null
[[ $(man -w qvxsAdd_16s_Sfs) == /usr/share/man/man3/qvxsAdd.3.gz ]]
[[ -f /usr/share/doc/libqvxs-doc/html/index.html ]]
dpkg --purge python3-qvxs libqvxs-doc libqvxs-dev libqvxs7 libqvxcore1 >/dev/null
find /usr /etc /lib /var/lib/dpkg/info | sort >/after
diff /before /after
if /program "$1" 2>/dev/null; then exit 1; fi
echo "the packages were installed, used, and removed without a trace"
