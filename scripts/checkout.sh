# Finds the checkout and sets `root` to a name of it that the build can bear. To be sourced.
#
# CMake takes ; for the end of an item, \ for a /, and " and # for parts of its language, even in the
# path of what it builds. A checkout with one of these in its path is built through an open file:
# the kernel leads from that file's name to the folder, in this process and in those it starts, and
# the name is the same in every run.

# The dot keeps a line break at the end of the path from being dropped.
root=$(readlink -f "${BASH_SOURCE[0]}" && echo .)
root=${root%/scripts/*}

refuse() {
  echo "${0##*/}: $1" >&2
  exit 1
}
case $root in
  *$'\n'*) refuse 'the path of this folder holds a line break, which the build cannot bear' ;;
  *[\;\\\"\#]*)
    exec 99<"$root"
    root=/proc/self/fd/99
    ;;
esac

# need_writable: ends the script in one line where nothing can be built.
need_writable() {
  local folder
  for folder in "$root" "$root/build" "$root/program"; do
    [[ ! -e $folder || -w $folder ]] || refuse "cannot build: $(readlink -f "$folder") is read-only"
  done
}
