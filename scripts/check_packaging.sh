#!/usr/bin/env bash
# Fails when the menu entry, the description or a manual page would be found fault with.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."

desktop-file-validate packaging/tessel-sudoku.desktop
appstreamcli validate --no-net packaging/*.metainfo.xml
status=0
for page in docs/man/*.6; do
  warnings=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
  [[ -z $warnings ]] || {
    echo "$page: $warnings" >&2
    status=1
  }
done
exit $status
