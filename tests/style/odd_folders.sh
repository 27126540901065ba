#!/usr/bin/env bash
# The commands in checkouts whose folders have odd names: the sounds, which a command of the build
# makes, are built in them; where nothing can be built, one line says so and nothing is written.
# odd_folders.sh NEW_FOLDER: works in this folder.
set -euo pipefail
checkout=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/../..")
work=$1
rm -rf "$work"
mkdir -p "$work"

fail() {
  echo "$1" >&2
  exit 1
}
# copy_to FOLDER: the sources of the checkout.
copy_to() {
  mkdir "$1"
  tar -C "$checkout" --exclude=./build --exclude=./program --exclude=./.git -c . | tar -x -C "$1"
}
# must_build_in NAME
must_build_in() {
  local folder=$work/built/$1
  mkdir "$work/built"
  copy_to "$folder"
  bash -euo pipefail -s "$folder" <<'BUILD' || fail "does not build in a folder named $1"
source "$1/scripts/checkout.sh"
cmake -S "$root" --preset play --log-level=WARNING -D CMAKE_CXX_FLAGS_RELEASE= -D TESSEL_LTO=OFF \
  >/dev/null
ninja -C "$root/build/play" tessel_sounds
BUILD
  [[ -s $folder/build/play/sounds/Giggle.wav ]] || fail "no sounds in a folder named $1"
  [[ $(find "$work/built" -mindepth 1 -maxdepth 1 | wc -l) == 1 && ! -e $work/built/touched ]] ||
    fail "something was written beside a folder named $1"
  rm -r "$work/built"
}
# must_refuse FOLDER WORDS: each command ends at once with one line that holds WORDS.
must_refuse() {
  local command status errors
  for command in play check tessel; do
    status=0
    errors=$(cd / && DISPLAY=:0 timeout 60 "${as_reader[@]}" "$1/$command" 2>&1 </dev/null) || status=$?
    [[ $status == 1 && $errors == "$command: "*"$2"* && $errors != *$'\n'*$'\n'* ]] ||
      fail "$command in $1 ends with $status and: $errors"
    [[ ! -e $1/build && ! -e $1/program ]] || fail "$command has written to $1"
  done
}

# shellcheck disable=SC2016
must_build_in "tessel (1), it's mine & \$HOME \`touch touched\` sémi"
# shellcheck disable=SC2016
must_build_in "a \"b\" ; c \\ d # \$(touch touched) 'é"

as_reader=()
copy_to "$work/line
break"
must_refuse "$work/line
break" 'line break'

mkdir "$work/reader"
copy_to "$work/reader/clone"
chmod -R a-w,a+rX "$work/reader/clone"
if ((EUID == 0)); then
  as_reader=(setpriv --reuid=65534 --clear-groups)
  # All folders above must let another user through.
  "${as_reader[@]}" test -x "$work/reader/clone/play" || as_reader=(skip)
fi
[[ ${as_reader[*]:-} == skip ]] || must_refuse "$work/reader/clone" 'is read-only'
chmod -R u+w "$work/reader/clone"
rm -rf "$work"
