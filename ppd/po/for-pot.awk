# SPDX-License-Identifier: Apache-2.0
#
# Writes the texts of the PPD as entries of a catalogue without translations.
#
#   awk -f drv-texts.awk -f for-pot.awk whole.drv > ppd.pot

{ add_drv_texts($0) }

END {
  printf "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n\n"
  for (i = 1; i <= drv_texts; ++i) {
    text = catalogue_text(drv_text[i])
    if (text in written) {
      continue
    }
    written[text] = 1
    print "#. Printer description: at most 80 bytes (a letter beyond ASCII has 2 or 3), no colon."
    print "#: ppd/tqr7.drv"
    if (text ~ /\{/) {
      print "#. {number} and {class} become four digits each."
      print "#, python-brace-format"
    }
    printf "msgid \"%s\"\nmsgstr \"\"\n\n", text
  }
}
