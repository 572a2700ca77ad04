# The Debian packages that the project needs, by group, and the functions that see to them. Sourced by ./test and
# ./demo; defines names beginning with setup_ and does nothing by itself.
#
#   setup_require build test    installs what is missing of these groups; without them the caller cannot go on, so where
#                               they cannot be installed it prints the line that would do it and exits with status 2
#   setup_try cross             the same for a group that one can do without: returns 1 and leaves the reason in
#                               setup_reason
#   setup_compiler_cache        builds go through ccache if it is there
#
# Where every package is there, neither prints nor changes anything. With ZTHALF_NO_SETUP set to anything but the empty
# string nothing is looked at: for machines whose tools do not come from Debian packages.

# With a compiler cache, where there is one, a second build is short. CMake takes this from the environment.
setup_compiler_cache() {
  if [ -z "${CMAKE_CXX_COMPILER_LAUNCHER:-}" ] && command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}
  fi
}

setup_packages() {
  local group
  for group in "$@"; do
    case $group in
      build) echo g++ cmake ninja-build libtbb-dev pkg-config binutils ;;
      test) echo python3 libgtest-dev libgmock-dev libmpfr-dev libmpc-dev ;;
      cross) echo g++-aarch64-linux-gnu qemu-user-static libtbb-dev:arm64 googletest ;;
      ppc64le) echo g++-powerpc64le-linux-gnu qemu-user-static libtbb-dev:ppc64el googletest ;;
      s390x) echo g++-s390x-linux-gnu qemu-user-static libtbb-dev:s390x googletest ;;
      full) echo clang libclang-rt-14-dev ;;
      package) echo debhelper lintian dpkg-dev fakeroot debootstrap ;;
      proof) echo python3 ;;
      peers) echo python3-numpy libeigen3-dev ;;
      bench) echo libbenchmark-dev ;;
      *) echo "setup_packages: there is no group '$group'" >&2 && return 1 ;;
    esac
  done
}

setup_missing() {
  local package
  for package in $(setup_packages "$@"); do
    dpkg-query --show --showformat='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || echo "$package"
  done
}

# The lines that install the given packages, as a person would type them.
setup_commands() {
  local package
  for package in "$@"; do
    case $package in *:*) echo "dpkg --add-architecture ${package#*:}" ;; esac
  done
  echo "apt-get update"
  echo "apt-get install --yes --no-install-recommends $*"
}

# Prints what runs a command as root: nothing for root itself, else sudo if it works.
setup_as_root() {
  [ "$(id -u)" = 0 ] && return 0
  command -v sudo >/dev/null && { sudo -n true 2>/dev/null || { [ -t 0 ] && sudo -v; }; } && echo sudo
}

# Installs the given packages; on failure leaves the reason in setup_reason.
setup_install() {
  local root line log
  if ! root=$(setup_as_root); then
    setup_reason="not root, and sudo does not work here"
    return 1
  fi
  log=$(mktemp)
  while read -r line; do
    echo "   $line"
    # A machine may be busy with its own updates just after its first start: wait for the lock.
    # shellcheck disable=SC2086
    if ! $root env DEBIAN_FRONTEND=noninteractive ${line/#apt-get/apt-get -o DPkg::Lock::Timeout=300} \
      </dev/null >"$log" 2>&1; then
      setup_reason="'$line' failed: $(grep -E '^(E|dpkg):' "$log" | tail -n 2 | tr '\n' ' ')"
      rm -f "$log"
      return 1
    fi
  done < <(setup_commands "$@")
  rm -f "$log"
}

setup_try() {
  local missing
  setup_reason=
  [ -z "${ZTHALF_NO_SETUP:-}" ] || return 0
  if ! command -v dpkg-query >/dev/null; then
    setup_reason="this is not a Debian system; what is needed is the equivalent of: $(setup_packages "$@" | xargs)"
    return 1
  fi
  missing=$(setup_missing "$@" | xargs)
  [ -n "$missing" ] || return 0
  echo "   missing packages: $missing"
  # shellcheck disable=SC2086
  setup_install $missing
}

setup_require() {
  setup_try "$@" && return 0
  echo >&2
  echo "Needed packages are not there: $setup_reason" >&2
  if command -v dpkg-query >/dev/null; then
    echo "As root, run:" >&2
    # shellcheck disable=SC2046
    setup_commands $(setup_missing "$@") | sed 's/^/  /' >&2
  fi
  echo "or set ZTHALF_NO_SETUP=1 if the tools are there by another way." >&2
  exit 2
}
