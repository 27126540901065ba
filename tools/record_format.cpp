#include "tools/record_format.h"

#include "tools/failure.h"

namespace tessel::tools {

RecordFormat::RecordFormat(const std::string& name, const std::string& columns)
    : format_(formats::FormatNamed(name)), names_(columns) {
  if (columns.empty()) return;
  if (name != "csv" && name != "jsonl") throw WrongOptions("--columns is for csv and jsonl");
  auto named = formats::ColumnsNamed(columns);
  if (!named) {
    throw WrongOptions("there is no column '" + named.error() +
                       "', but there are: " + formats::ColumnNames());
  }
  columns_ = *std::move(named);
}

std::string RecordFormat::Header() const {
  if (columns_.empty() || format_->header.empty()) return std::string(format_->header);
  return formats::CsvHeader(columns_);
}

formats::Writing RecordFormat::Write(const formats::DescribedPuzzle& puzzle) const {
  if (columns_.empty()) return format_->write(puzzle);
  return format_->header.empty() ? formats::JsonLine(puzzle, columns_)
                                 : formats::CsvLine(puzzle, columns_);
}

}  // namespace tessel::tools
