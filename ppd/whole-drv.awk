# SPDX-License-Identifier: Apache-2.0
#
# The whole source of the PPD: tqr7.drv, with a line for each row of the list of reasons where it says
# @REASONS@.
#
#   awk -f whole-drv.awk ../status/reason_list.def tqr7.drv > whole.drv

function fail(words) {
  print "whole-drv.awk: " words > "/dev/stderr"
  failed = 1
  exit 1
}

function between_quotes(line) {
  sub(/^[^"]*"/, "", line)
  sub(/".*$/, "", line)
  return line
}

# The two texts of the PPD are the lines that hold nothing but a string.
/^REASON_TEXT\(/ { name = $0; gsub(/^REASON_TEXT\(|,.*$/, "", name); texts = 0; next }
/^ +"[^"]*",$/ && name != "" && texts < 2 { text[name, ++texts] = between_quotes($0); next }

/^REASON\(/ {
  split($0, column, /[(),] */)
  shown = text[column[5], column[2] == column[3] ? 1 : 2]
  gsub(/\{number\}/, column[2], shown)
  gsub(/\{class\}/, column[3], shown)
  if (shown != "") {
    reasons = reasons sprintf("Attribute cupsIPPReason \"%s/%s\" \"\"\n", between_quotes($0), shown)
  }
  next
}

FNR == 1 { source = FILENAME ~ /\.drv$/ }
/^@REASONS@$/ { if (reasons == "") fail("there is no reason"); printf "%s", reasons; placed = 1; next }
source { print }

END { if (!failed && !placed) fail("@REASONS@ is not in the source") }
