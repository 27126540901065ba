#!/usr/bin/env bash
# check_kernels.sh ARCHIVE: fails when a file compiled for wider vectors shares a function with the
# rest of the program. The linker keeps one copy, and it may be the one that other machines cannot run.
set -euo pipefail
shared=$(nm -C --defined-only "$1" 2>/dev/null |
  awk '/^kernel_avx.*:$/ { wide = 1; next } /:$/ { wide = 0 } wide && $2 ~ /^[WVu]$/ && !/Avx(2|512)Lanes/')
if [[ -n $shared ]]; then
  echo "$shared"
  echo "^ shared by files compiled with different options" >&2
  exit 1
fi
