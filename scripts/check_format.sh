#!/usr/bin/env bash
# Shows what clang-format would change; fails when there is anything.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source scripts/sources.sh

status=0
while read -r file; do
  clang-format-14 "$file" | diff -u --label "$file" --label "$file (formatted)" "$file" - || status=1
done < <(cpp_files)
exit $status
