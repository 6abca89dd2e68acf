#!/usr/bin/env bash
# Runs a Windows program, or a command that starts some, in a Wine prefix of its own with a screen in
# memory of its own, and ends both however the run ends. Makes the prefix when there is none.
# Usage: scripts/run_under_wine.sh [OPTION...] PREFIX PROGRAM.exe|COMMAND [ARGUMENT...]
#   --fresh  starts with the registry of a new prefix, whatever earlier runs left in it
#   --shown  on the screen that DISPLAY names, instead of one in memory
# A command finds WINEPREFIX and DISPLAY in its environment. Exit code: the program's.
set -euo pipefail

fresh=0
shown=0
while [[ ${1-} == --* ]]; do
  case $1 in
    --fresh) fresh=1 ;;
    --shown) shown=1 ;;
    *)
      echo "run_under_wine: there is no option '$1'" >&2
      exit 2
      ;;
  esac
  shift
done
[[ $# -ge 2 ]] || {
  echo "Usage: scripts/run_under_wine.sh [OPTION...] PREFIX PROGRAM.exe|COMMAND [ARGUMENT...]" >&2
  exit 2
}
mkdir -p "$1"
WINEPREFIX=$(cd -- "$1" && pwd)
shift
[[ $1 != *.exe ]] || set -- wine "$@"

# No offers to download parts of Wine, and nothing in the user's menus and folders.
export WINEPREFIX WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
export WINEDEBUG=${WINEDEBUG:--all}
export HOME=$WINEPREFIX/home
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME
# Wine writes names of files as the locale does.
export LC_ALL=C.UTF-8

screen=
program=

CleanUp() {
  trap '' INT TERM HUP
  # It has a process group, which other programs that it started are in, too.
  [[ -z $program ]] || kill -TERM -- "-$program" 2>/dev/null || true
  wineserver -k 2>/dev/null || true
  [[ -z $screen ]] || kill "$screen" 2>/dev/null || true
  wait
}

# A prefix has a copy of its registry when it was made to the end.
MakePrefix() {
  [[ ! -e $WINEPREFIX/registry ]] || return 0
  rm -rf "$WINEPREFIX"
  mkdir -p "$HOME" "$WINEPREFIX/registry.new"
  env -u DISPLAY wineboot --init >"$WINEPREFIX/wineboot.log" 2>&1
  # There is no window manager on a screen in memory: windows draw their own title bars.
  wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >>"$WINEPREFIX/wineboot.log" 2>&1
  # A program that crashes ends; nobody is there to close a window that tells of it.
  wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f \
    >>"$WINEPREFIX/wineboot.log" 2>&1
  wineserver -w
  # Not all of Wine's own fonts are found where Debian puts them; those of title bars are not.
  cp -n /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/" 2>/dev/null || true
  cp "$WINEPREFIX"/*.reg "$WINEPREFIX/registry.new"
  mv "$WINEPREFIX/registry.new" "$WINEPREFIX/registry"
}

StartScreen() {
  local number log=$WINEPREFIX/screen.log
  exec 3< <(exec Xvfb -displayfd 1 -screen 0 1024x768x24 -nolisten tcp 2>"$log")
  screen=$!
  read -r -u 3 number || {
    echo "run_under_wine: Xvfb does not start; see $log" >&2
    exit 2
  }
  export DISPLAY=:$number
}

Run() {
  local ended=0
  set -m
  "$@" <&0 &
  program=$!
  set +m
  wait "$program" || ended=$?
  program=
  exit "$ended"
}

trap CleanUp EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
trap 'exit 129' HUP
MakePrefix
[[ $shown -eq 1 ]] || StartScreen
[[ $fresh -eq 0 ]] || cp "$WINEPREFIX"/registry/*.reg "$WINEPREFIX"
Run "$@"
