# SPDX-License-Identifier: Apache-2.0
#
# The texts of a PPD's source, KEY/Text in quotes, in their order: drv_text[1 .. drv_texts]. Numbers and
# PostScript are left out, because they need no translation.

# Remembers the texts of one line.
function add_drv_texts(line,    text) {
  if (line ~ /^[ \t]*(\/\/|Attribute cupsPreFilter)/) {
    return
  }
  while (match(line, /"[^"\/]+\/[^"]+"/)) {
    text = substr(line, RSTART + 1, RLENGTH - 2)
    line = substr(line, RSTART + RLENGTH)
    sub(/^[^\/]*\//, "", text)
    if (text !~ /^[-+]?[0-9]+$/ && text !~ /setpagedevice/) {
      drv_text[++drv_texts] = text
    }
  }
}

# The catalogue has one sentence for all printer errors of a kind: "Printer error {number} (class
# {class}). …". All other texts are in it as they are.
function catalogue_text(text) {
  if (text ~ /^Printer error [0-9]/ && text !~ /^Printer error 0004/) {
    sub(/error [0-9]+/, "error {number}", text)
    sub(/\(class [0-9]+\)/, "(class {class})", text)
  }
  return text
}

BEGIN {
  # The compiler's own words, which do not stand in the source.
  drv_texts = split("Media Size,Color Mode,Resolution", drv_text, ",")
}
