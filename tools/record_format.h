// The form in which puzzles are written: a format, and the columns of a table.
#pragma once

#include <string>

#include "formats/columns.h"
#include "formats/format.h"

namespace tessel::tools {

class RecordFormat {
 public:
  // The usual columns where `columns` is empty. Throws WrongOptions for a column that is none, or
  // for a format without columns.
  RecordFormat(const std::string& name, const std::string& columns);

  const formats::Format& Base() const { return *format_; }
  // Parted by commas; empty for the usual ones.
  const std::string& ColumnNames() const { return names_; }
  // What stands once before all records.
  std::string Header() const;
  formats::Writing Write(const formats::DescribedPuzzle& puzzle) const;

 private:
  const formats::Format* format_;
  std::string names_;
  formats::Columns columns_;
};

}  // namespace tessel::tools
