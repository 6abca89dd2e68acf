#!/usr/bin/env bash
# Renders the drawings (*.svg) in this folder to the bitmaps that are checked in beside them.
# Usage: resources/render.sh [--check]
# With --check nothing is written; the exit code is 1 when a bitmap is not what its drawing gives.
# Needs the Debian packages librsvg2-bin, python3-pil and icoutils.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")"

Fail() {
  echo "render: $*" >&2
  exit 2
}

RequireProgram() {
  command -v "$1" >/dev/null || Fail "there is no $1; install the package $2"
}

# The first Python that has the imaging library: it may be the system's rather than the user's own.
FindPython() {
  local candidate
  for candidate in python3 /usr/bin/python3; do
    if "$candidate" -c 'import PIL' 2>/dev/null; then
      echo "$candidate"
      return
    fi
  done
  Fail "no python3 here has the imaging library; install the package python3-pil"
}

# Draws one SVG at a width, to a PNG.
Draw() {
  rsvg-convert --width "$2" --keep-aspect-ratio --output "$3" "$1"
}

RenderPixelArt() {
  local folder=$1 size=$2 drawing name
  mkdir -p "$new/$folder"
  for drawing in "$folder"/*.svg; do
    name=${drawing%.svg}
    Draw "$drawing" "$size" "$raw"
    "$python" to_bitmaps.py pixel-art "$size" "$raw" "$new/$name"
  done
}

RenderLogo() {
  mkdir -p "$new/splash"
  Draw splash/logo.svg 320 "$raw"
  "$python" to_bitmaps.py picture 320 "$raw" "$new/splash/logo"
}

# The two small sizes are drawn by hand. Only the largest is kept as PNG inside the icon: programs
# from before Windows Vista read the others and pass over it.
RenderIcon() {
  mkdir -p "$new/icon"
  Draw icon/brimwork16.svg 16 "$work/16.png"
  Draw icon/brimwork32.svg 32 "$work/32.png"
  Draw icon/brimwork.svg 48 "$work/48.png"
  Draw icon/brimwork.svg 256 "$raw"
  "$python" to_bitmaps.py png-only 256 "$raw" "$work/256"
  icotool --create --output="$new/icon/brimwork.ico" \
    "$work/16.png" "$work/32.png" "$work/48.png" --raw="$work/256.png"
}

# Prints the bitmaps that are missing, differ from what was rendered, or belong to no drawing.
ListDifferences() {
  local bitmap
  while IFS= read -r bitmap; do
    cmp --silent "$bitmap" "$new/$bitmap" || echo "$bitmap"
  done < <(
    {
      find . -name '*.bmp' -o -name '*.png' -o -name '*.ico'
      cd "$new" && find . -type f
    } | sort --unique
  )
}

Check() {
  local stale
  stale=$(ListDifferences)
  [[ -n $stale ]] || exit 0
  echo "render: these bitmaps are not what their drawings give; run resources/render.sh:" >&2
  echo "$stale" >&2
  exit 1
}

check=0
case ${1-} in
  "") ;;
  --check) check=1 ;;
  *) Fail "there is no option '$1'; the only one is --check" ;;
esac

RequireProgram rsvg-convert librsvg2-bin
RequireProgram icotool icoutils
python=$(FindPython)
work=$(mktemp --directory)
trap 'rm -rf "$work"' EXIT
new=$work/new
raw=$work/raw.png
mkdir "$new"

RenderPixelArt faces 16
RenderPixelArt msgbox 32
RenderLogo
RenderIcon
if [[ $check -eq 1 ]]; then Check; fi
cp --recursive "$new"/. .
