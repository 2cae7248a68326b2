# SPDX-License-Identifier: Apache-2.0
#
# Makes a catalogue that the PPD compiler can read: only the texts of the PPD, and a separate entry for
# each error. The compiler knows neither plurals nor contexts, and would use an unsure translation.
#
#   awk -f drv-texts.awk -f for-ppdc.awk whole.drv de.po > reduced/de.po

# The text between the quotes of a line; quotes within it stay escaped.
function quoted(line) {
  sub(/^[^"]*"/, "", line)
  sub(/"[ \t\r]*$/, "", line)
  return line
}

function end_entry() {
  if (id != "" && string != "" && !unsure && !plural && !context) {
    translation[id] = string
  }
  id = string = part = ""
  unsure = plural = context = 0
}

function write_pair(text,    found) {
  if (text in written || !(catalogue_text(text) in translation)) {
    return
  }
  written[text] = 1
  found = translation[catalogue_text(text)]
  if (match(text, /^Printer error [0-9]+/)) {
    gsub(/\{number\}/, substr(text, RSTART + 14, RLENGTH - 14), found)
  }
  if (match(text, /\(class [0-9]+/)) {
    gsub(/\{class\}/, substr(text, RSTART + 7, RLENGTH - 7), found)
  }
  printf "msgid \"%s\"\nmsgstr \"%s\"\n\n", text, found
}

# The first file is the PPD's source, the second the catalogue.
FNR == NR { add_drv_texts($0); next }
/^[ \t\r]*$/ || /^#~/ { end_entry(); next }
/^#,.*fuzzy/ { unsure = 1; next }
/^#/ { next }
/^msgctxt/ { context = 1; part = ""; next }
/^msgid_plural/ { plural = 1; part = ""; next }
/^msgid/ { part = "id"; id = quoted($0); next }
/^msgstr/ { part = "string"; string = quoted($0); next }
part == "id" { id = id quoted($0) }
part == "string" { string = string quoted($0) }

END {
  end_entry()
  for (i = 1; i <= drv_texts; ++i) {
    write_pair(drv_text[i])
  }
}
