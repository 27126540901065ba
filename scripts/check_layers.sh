#!/usr/bin/env bash
# Fails when a folder includes one that it must not know, or Qt outside the window's folder.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."

status=0
# includes FOLDER: every line of FOLDER that includes one of the project's files.
includes() {
  grep -rnE --include='*.h' --include='*.cpp' --exclude-dir=qt '^ *# *include *"' "$1" || true
}
# only_includes FOLDER ALLOWED...: of the project's folders, FOLDER may include ALLOWED alone.
only_includes() {
  local folder=$1
  local allowed=$2
  [ -d "$folder" ] || return 0
  if includes "$folder" | grep -vE "include *\"($allowed)/[a-z_0-9]+\.h\""; then
    echo "^ $folder/ may include only: $allowed" >&2
    status=1
  fi
}
# knows_no_window FOLDER: FOLDER works on values and tells what it does through core/progress.h.
knows_no_window() {
  local folder=$1
  [ -d "$folder" ] || return 0
  if includes "$folder" | grep -E 'include *"(core/(form|controls|view|clock|stopwatch|game_state|sounds|texts|vestiges)|shell/[a-z_0-9]+)\.h"'; then
    echo "^ $folder/ may not know the window, its state or its time" >&2
    status=1
  fi
}
only_includes core 'core'
only_includes layout 'core|layout'
only_includes search 'core|search'
only_includes hints 'core|hints'
only_includes solver 'core|solver'
only_includes grade 'core|hints|solver|grade'
only_includes maker 'core|layout|search|solver|hints|grade|maker'
only_includes formats 'core|layout|search|hints|solver|grade|formats'
only_includes paper 'core|grade|paper'
only_includes explain 'core|hints|grade|paper|explain'
only_includes shell 'core|layout|search|hints|solver|grade|maker|formats|paper|explain|shell'
only_includes tools 'core|layout|search|hints|solver|grade|maker|formats|paper|explain|tools'
for folder in layout search hints solver grade maker formats paper explain tools; do
  knows_no_window "$folder"
done

folders=()
for folder in core layout search hints solver grade maker formats paper explain shell tools; do
  [ -d "$folder" ] && folders+=("$folder")
done
if grep -rnE --include='*.h' --include='*.cpp' '^ *# *include *[<"]Q' "${folders[@]}" \
  --exclude-dir=qt; then
  echo "^ Qt belongs to shell/qt/ alone" >&2
  status=1
fi
if grep -rnE --include='*.h' --include='*.cpp' '^ *# *include *[<"]cairo' \
  "${folders[@]}" --exclude-dir=paper; then
  echo "^ Cairo belongs to paper/ alone" >&2
  status=1
fi
exit $status
