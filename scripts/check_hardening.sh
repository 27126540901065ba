#!/usr/bin/env bash
# check_hardening.sh PROGRAM COMPILE_COMMANDS: fails when the program lacks a protection of the
# linker or the compiler, or when the sources reach for the environment, the network or a file that
# is none of theirs.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
program=$1
compile_commands=$2

status=0
fail() {
  echo "$1" >&2
  status=1
}
# must_show TEXT WHAT COMMAND...: what the command prints holds TEXT.
must_show() {
  local text=$1
  local what=$2
  shift 2
  grep -qE "$text" <<<"$("$@")" || fail "$program: no $what"
}
must_show 'Flags:.* PIE' 'position-independent executable' readelf -dW "$program"
must_show 'GNU_RELRO' 'RELRO' readelf -lW "$program"
must_show 'BIND_NOW' 'immediate binding, so RELRO is partial' readelf -dW "$program"
must_show 'GNU_STACK.* RW ' 'stack that cannot be executed' readelf -lW "$program"
must_show '__stack_chk_fail' 'stack protector' readelf --dyn-syms -W "$program"

# Whether a call needs a check at run time is the compiler's choice, so the flag itself is looked at.
logic='"file": ".*/(core|layout|search|hints|shell)/'
files=$(grep -cE "$logic" "$compile_commands" || true)
fortified=$(grep -E -B3 "$logic" "$compile_commands" | grep -cE 'D_FORTIFY_SOURCE=[23]' || true)
((files > 0 && files == fortified)) || fail "$fortified of $files files are fortified"

# forbid PATTERN WHY [EXCEPTION]: no line of the sources holds PATTERN, but those in EXCEPTION.
forbid() {
  if grep -rnE --include='*.h' --include='*.cpp' "$1" core layout search solver hints shell |
    grep -vE "^(${3:-none}):"; then
    fail "^ $2"
  fi
}
forbid 'getenv|environ\b|qEnvironmentVariable|qgetenv' 'no setting is read from the environment but where its user keeps data' \
  'shell/puzzle_folder\.cpp'
forbid 'sys/socket|netinet|QTcp|QUdp|QLocalS|QNetwork' 'the program has nothing to do with a network'
forbid 'ofstream|fopen|freopen|mkstemp|QSaveFile|QSettings|QTemporary|WriteOnly|ReadWrite|Append\)' \
  'no file is written but the puzzle file'
# The sounds' process opens /dev/null in place of its standard streams.
forbid 'O_(WRONLY|RDWR|CREAT)' 'no file is written but the puzzle file' \
  'shell/puzzle_file\.cpp|shell/qt/qt_sound_player\.cpp'
exit $status
