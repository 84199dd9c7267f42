#!/usr/bin/env bash
# Prints the prefix under which CMake finds HiGHS 1.10 or newer; empty when the system's own package serves. With
# --must-build nothing is done but to tell, by the exit code, whether it would have to be built.
#
# Where apt offers libhighs-dev in that version it is installed. Elsewhere HiGHS is built once from the source package
# of the next distribution release into ${XDG_CACHE_HOME:-~/.cache}/tarq and reused by every checkout. The archive's
# address is the one this machine's apt already uses, and apt checks the archive's signature and the file's checksum.
set -euo pipefail

readonly minimum=1.10
readonly next_release=trixie
readonly recipe=3 # raise when the build options below change, so that older caches are not reused
cache_root="${XDG_CACHE_HOME:-${HOME:?}/.cache}/tarq"
readonly cache_root
readonly prefix="$cache_root/highs-$recipe"
tools=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly tools

say() { printf '%s\n' "$*" >&2; }
as_root() { if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi; }

package_serves() {
  local candidate
  candidate=$(apt-cache policy libhighs-dev 2>/dev/null | awk '/Candidate:/ {print $2}')
  [ -n "$candidate" ] && [ "$candidate" != "(none)" ] || return 1
  dpkg --compare-versions "$candidate" ge "$minimum"
}

install_package() {
  package_serves || return 1
  dpkg -s libhighs-dev >/dev/null 2>&1 || as_root apt-get install -y --no-install-recommends libhighs-dev >&2
}

# A cache counts only if its build went through to the end and its files are the ones that were recorded then.
cache_is_whole() {
  [ -f "$prefix/files.sha256" ] && (cd "$prefix" && sha256sum --quiet --check files.sha256 >/dev/null 2>&1)
}

archive_address() {
  apt-get indextargets --format '$(REPO_URI)|$(ORIGIN)|$(COMPONENT)|$(CODENAME)' 'Created-By: Packages' |
    awk -F'|' '$2 == "Debian" && $3 == "main" && $4 !~ /-/ {print $1; exit}'
}

# Brings the source through an apt of its own, so that the machine's lists and sources stay as they are.
fetch_source() {
  local work=$1 address
  address=$(archive_address)
  [ -n "$address" ] || { say "apt knows no distribution archive to take the source of HiGHS from"; return 1; }
  mkdir -p "$work/lists/partial" "$work/archives/partial"
  printf 'Types: deb-src\nURIs: %s\nSuites: %s\nComponents: main\nSigned-By: %s\n' "$address" "$next_release" \
    /usr/share/keyrings/debian-archive-keyring.gpg >"$work/next.sources"
  printf '%s "%s";\n' Dir::Etc::SourceList "$work/next.sources" Dir::Etc::SourceParts - \
    Dir::State::Lists "$work/lists" Dir::Cache "$work" APT::Sandbox::User root >"$work/apt.conf"
  (
    cd "$work"
    export APT_CONFIG="$work/apt.conf"
    apt-get -qq update >&2
    # The packaging tarball is not needed and is sometimes gone before the upstream one.
    apt-get -qq source --download-only --tar-only highs >&2
    mkdir source
    tar -xf highs_*.orig.tar.* --strip-components=1 -C source
  )
}

build() {
  work=$(mktemp -d)
  trap 'rm -rf "$work"' EXIT
  say "Building HiGHS once into $prefix (about two minutes on two cores)"
  fetch_source "$work"
  cmake -S "$work/source" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=g++ \
    -DCMAKE_C_COMPILER=gcc -DCMAKE_POSITION_INDEPENDENT_CODE=ON -DBUILD_SHARED_LIBS=OFF -DBUILD_TESTING=OFF \
    -DBUILD_EXAMPLES=OFF -DZLIB=OFF -DCMAKE_PROJECT_INCLUDE="$tools/highs-fewer-units.cmake" \
    -DCMAKE_INSTALL_LIBDIR=lib -DCMAKE_INSTALL_PREFIX="$work/prefix" >"$work/log" 2>&1 ||
    { tail -n 40 "$work/log" >&2; say "HiGHS could not be configured"; return 1; }
  "$tools/build-with-progress.sh" HiGHS "$work/build" || { say "HiGHS could not be built"; return 1; }
  cmake --install "$work/build" >/dev/null
  (cd "$work/prefix" && find . -type f ! -name files.sha256 -print0 | xargs -0 sha256sum >files.sha256)
  mkdir -p "$cache_root"
  rm -rf "$prefix"
  mv "$work/prefix" "$prefix"
}

main() {
  if [ "${1:-}" = --must-build ]; then
    if package_serves || cache_is_whole; then exit 1; fi
    exit 0
  fi
  if install_package; then return; fi
  # One build at a time, also when two checkouts start together.
  mkdir -p "$cache_root"
  exec 9>"$cache_root/lock"
  flock 9
  cache_is_whole || build
  printf '%s\n' "$prefix"
}

main "$@"
