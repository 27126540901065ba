# To be sourced from the root of the project.

program_folders=(core layout search solver hints grade maker formats explain paper shell tools sounds)

# cpp_files: every C++ file of the project, one a line. program_files: the .cpp files of the programs.
# test_files: those of the others.
cpp_files() {
  find "${program_folders[@]}" tests bench fuzz -name '*.h' -o -name '*.cpp' 2>/dev/null | sort
}
program_files() {
  find "${program_folders[@]}" -name '*.cpp' 2>/dev/null | sort
}
test_files() {
  find tests bench fuzz -name '*.cpp' 2>/dev/null | sort
}

# naming_rules: the options of .clang-tidy's check of names, which the given names are excepted from.
naming_rules() {
  local names kind
  names="^($(grep -vE '^#|^$' docs/given-names.txt | paste -sd '|'))\$"
  sed -n '/^CheckOptions:/,$p' .clang-tidy
  for kind in Class Enum EnumConstant Function Method Parameter PrivateMember PublicMember \
    LocalVariable; do
    echo "  - {key: readability-identifier-naming.${kind}IgnoredRegexp, value: '$names'}"
  done
}
