#!/usr/bin/env bash
# check_version.sh VERSION: the newest section of the changelog is that of the version being built.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."

newest=$(sed -nE 's/^## ([0-9.]+).*/\1/p' CHANGELOG.md | head -n 1)
[[ $newest == "$1" ]] || {
  echo "CHANGELOG.md begins with version ${newest:-(none)}, the project is version $1" >&2
  exit 1
}
