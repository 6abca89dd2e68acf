#!/usr/bin/env bash
# Installs the Debian packages that Brimwork's build, tests or benchmarks need and that are missing.
# Usage: scripts/install_packages.sh GROUP...     (groups: build, test, bench)
# Touches nothing, and needs neither root nor the network, when all of them are there.
set -euo pipefail

build=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libdtl-dev libhunspell-dev)
test=(libgtest-dev libgmock-dev patch git locales hunspell-en-us unrtf chromium)
bench=(libbenchmark-dev time highlight enscript python3-pygments)

Fail() {
  echo "install_packages: $*" >&2
  exit 2
}

IsInstalled() {
  dpkg-query --show --showformat='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

wanted=()
for group in "$@"; do
  case $group in
    build) wanted+=("${build[@]}") ;;
    test) wanted+=("${test[@]}") ;;
    bench) wanted+=("${bench[@]}") ;;
    *) Fail "there is no package group '$group'; the groups are build, test and bench" ;;
  esac
done
[[ ${#wanted[@]} -gt 0 ]] || Fail "name one or more package groups: build, test, bench"

{ command -v apt-get && command -v dpkg-query; } >/dev/null ||
  Fail "this is no Debian machine; install the equivalents of these by hand: ${wanted[*]}"

missing=()
for package in "${wanted[@]}"; do
  IsInstalled "$package" || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

asRoot=()
if [[ $EUID -ne 0 ]]; then
  command -v sudo >/dev/null ||
    Fail "these packages are missing: ${missing[*]}; run this as root, or install sudo"
  asRoot=(sudo)
fi

apt=("${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300)
echo "Installing ${missing[*]}"
"${apt[@]}" update
"${apt[@]}" install --yes --no-install-recommends "${missing[@]}"
