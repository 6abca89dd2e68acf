#!/usr/bin/env bash
# Installs Wine for Windows programs of 32 and 64 bits, a screen in memory and the MinGW compilers.
# Touches nothing when they are there. Needs root or sudo otherwise, and adds the i386 architecture.
set -euo pipefail

packages=(g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix googletest
          wine wine64 wine32:i386 fonts-wine fonts-liberation xvfb xauth xdotool)

IsInstalled() {
  dpkg-query --show --showformat='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

Install() {
  DEBIAN_FRONTEND=noninteractive apt-get "$@" install -y --no-install-recommends \
    "${packages[@]}" >/dev/null
}

# Packages of both architectures have to be of one version. Where the index of the security suite
# cannot be read for i386, only the main suite has them all, some of them older than what is here.
InstallFromMainSuite() {
  local work codename mirror
  work=$(mktemp -d)
  # shellcheck disable=SC2064
  trap "rm -rf '$work'" EXIT
  codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
  mirror=$(apt-get indextargets --format '$(CODENAME) $(REPO_URI)' 'Created-By: Packages' |
    awk -v codename="$codename" '$1 == codename && !found++ { print $2 }')
  mkdir -p "$work/lists/partial"
  chmod -R 755 "$work"
  echo "deb $mirror $codename main" >"$work/sources.list"
  printf 'Package: *\nPin: release n=%s\nPin-Priority: 1001\n' "$codename" >"$work/preferences"
  local main=(-o Dir::Etc::SourceList="$work/sources.list" -o Dir::Etc::SourceParts=/dev/null
    -o Dir::Etc::Preferences="$work/preferences" -o Dir::Etc::PreferencesParts=/dev/null
    -o Dir::State::Lists="$work/lists" -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache=)
  apt-get "${main[@]}" update >/dev/null
  Install "${main[@]}" --allow-downgrades
}

missing=()
for package in "${packages[@]}"; do
  IsInstalled "$package" || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0
{ command -v apt-get && command -v dpkg-query; } >/dev/null || {
  echo "install_wine: this is no Debian machine; install the equivalents of ${missing[*]} by hand" >&2
  exit 2
}
if [[ $EUID -ne 0 ]]; then
  if command -v sudo >/dev/null; then exec sudo -- "${BASH_SOURCE[0]}"; fi
  echo "install_wine: run it as root once, it has to install ${missing[*]}" >&2
  exit 2
fi
echo "== Installing ${missing[*]}"
dpkg --add-architecture i386
if apt-get update >/dev/null 2>&1 && Install 2>/dev/null; then exit 0; fi
echo "install_wine: the usual way does not work; taking the packages from the main suite alone" >&2
InstallFromMainSuite
