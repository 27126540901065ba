#!/usr/bin/env bash
# Fails when a folder includes one that it must not know, or Qt outside the window's folder.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."

status=0
# only_includes FOLDER ALLOWED...: of the project's folders, FOLDER may include ALLOWED alone.
only_includes() {
  local folder=$1
  local allowed=$2
  if grep -rnE --include='*.h' --include='*.cpp' --exclude-dir=qt \
    '^ *# *include *"' "$folder" | grep -vE "include *\"($allowed)/[a-z_0-9]+\.h\""; then
    echo "^ $folder/ may include only: $allowed" >&2
    status=1
  fi
}
# never_includes FOLDER FORBIDDEN: FOLDER must not know these headers of folders that it may include.
never_includes() {
  local folder=$1
  local forbidden=$2
  if grep -rnE --include='*.h' --include='*.cpp' "^ *# *include *\"core/($forbidden)\.h\"" "$folder"; then
    echo "^ $folder/ works on values and must not know: $forbidden" >&2
    status=1
  fi
}
only_includes core 'core'
only_includes layout 'core|layout'
only_includes search 'core|search'
only_includes hints 'core|hints'
never_includes hints 'form|controls|view|clock|game_state|sounds|stage_time|texts'
only_includes grade 'core|hints|solver|grade'
only_includes solver 'core|solver'
only_includes formats 'core|layout|search|hints|solver|grade|formats'
only_includes paper 'core|grade|paper'
only_includes shell 'core|layout|search|hints|solver|grade|formats|paper|shell'
only_includes tools 'core|layout|search|hints|solver|grade|maker|formats|paper|tools'

if grep -rnE --include='*.h' --include='*.cpp' '^ *# *include *[<"]Q' \
  core layout search solver hints grade formats paper shell tools --exclude-dir=qt; then
  echo "^ Qt belongs to shell/qt/ alone" >&2
  status=1
fi
if grep -rnE --include='*.h' --include='*.cpp' '^ *# *include *[<"]cairo' \
  core layout search solver hints grade formats shell tools; then
  echo "^ Cairo belongs to paper/ alone" >&2
  status=1
fi
exit $status
