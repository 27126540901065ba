# To be sourced from the root of the project.

# Every C++ file of the project, one a line.
cpp_files() {
  find core layout search hints shell sounds tests bench fuzz -name '*.h' -o -name '*.cpp' | sort
}
