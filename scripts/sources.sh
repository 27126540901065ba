# To be sourced from the root of the project.

program_folders=(core layout search solver hints grade maker formats explain paper shell tools sounds)

# cpp_files: every C++ file of the project, one a line. program_files: the .cpp files of the programs.
cpp_files() {
  find "${program_folders[@]}" tests bench fuzz -name '*.h' -o -name '*.cpp' 2>/dev/null | sort
}
program_files() {
  find "${program_folders[@]}" -name '*.cpp' 2>/dev/null | sort
}
