// SPDX-License-Identifier: Apache-2.0
//
// Makes the compiled-in colour table while the build runs: make-builtin-table SOURCE writes the
// table of the printer model as a C++ source.
#include <cstdio>
#include <memory>
#include <new>

#include "conversion/table_from_profile.h"
#include "model/printer_model.h"

namespace {

constexpr const char* kBegin =
    "// Made by make-builtin-table from the printer model.\n"
    "#include \"conversion/builtin_table.h\"\n\n"
    "namespace {\n\nconstexpr ColourTable kTable = {{{\n";
constexpr const char* kEnd =
    "}}};\n\n}  // namespace\n\n"
    "const ColourTable& builtin_table() {\n  return kTable;\n}\n";

bool write_source(const char* path, const ColourTable& table) {
  std::FILE* file = std::fopen(path, "w");
  if (file == nullptr) {
    return false;
  }
  std::fputs(kBegin, file);
  for (const ColourNode& node : table.nodes) {
    std::fprintf(file, "    {%d, %d, %d, %d},\n", node[0], node[1], node[2], node[3]);
  }
  std::fputs(kEnd, file);
  const bool whole = std::ferror(file) == 0;
  return std::fclose(file) == 0 && whole;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("Usage: make-builtin-table SOURCE\n", stderr);
    return 2;
  }
  const std::unique_ptr<ColourTable> table(new (std::nothrow) ColourTable);
  const char* fault =
      table == nullptr ? "there is no memory" : make_colour_table(printer_model_profile(), *table);
  if (fault != nullptr) {
    std::fprintf(stderr, "make-builtin-table: the printer model: %s\n", fault);
    return 1;
  }
  if (!write_source(argv[1], *table)) {
    std::fprintf(stderr, "%s: cannot be written\n", argv[1]);
    return 1;
  }
  return 0;
}
