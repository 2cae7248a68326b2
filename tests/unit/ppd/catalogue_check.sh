#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# ppd/po/check finds what may be wrong with a catalogue, and ppd/po/for-ppdc.awk gives the PPD compiler
# nothing that it cannot read.
# catalogue_check.sh SOURCE-FOLDER
set -uo pipefail

source=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
ln -s "$source/status" "$work/status"
failures=0
fail() {
  echo "FAILED: $*"
  failures=$((failures + 1))
}

# Breaks the German catalogue by a sed script, and expects the check's words for it.
expect_found() {
  local what=$1 words=$2 said
  shift 2
  rm -rf "$work/ppd"
  cp -r "$source/ppd" "$work"
  sed -i "$@" "$work/ppd/po/de.po"
  cmp -s "$source/ppd/po/de.po" "$work/ppd/po/de.po" && fail "$what: nothing was broken"
  said=$("$work/ppd/po/check" de 2>&1) && fail "$what: not found"
  [[ $said == *"$words"* ]] || fail "$what: \"$words\" is not in \"$said\""
}

expect_found 'a message without a translation' 'untranslated' \
  '/^msgid "Nothing to do."$/{n;s/".*"/""/}'
expect_found 'an unsure translation' 'only-fuzzy' 's/^msgid "Nothing to do."$/#, fuzzy\n&/'
expect_found 'a message that is gone' 'only-obsolete' '1i#~ msgid "gone"\n#~ msgstr "fort"\n'
expect_found 'a message that the template does not have' 'does not go with tqr7.pot' \
  's/^msgid "Nothing to do."$/msgid "Nothing at all."/'
expect_found 'a lost place for a value' 'format specifications' \
  '/^msgid "there is no queue %s"$/{n;s/%s/%d/}'
expect_found 'a lost word of the PPD' 'msgfmt finds' 's/^msgstr "Druckerfehler {number}\. /msgstr "Fehler. /'
expect_found '81 bytes' '81 bytes, more than 80' \
  "/^msgid \"Gloss\"\$/{n;s/\".*\"/\"$(printf 'ü%.0s' {1..40})x\"/}"
expect_found 'a colon' 'a colon' '/^msgid "Gloss"$/{n;s/".*"/"Glanz: viel"/}'
expect_found 'angle brackets' '< >' '/^msgid "Gloss"$/{n;s/".*"/"Glanz <viel>"/}'
expect_found 'a translated command' 'commands differ' '/^msgstr/s/resume QUEUE/resume SCHLANGE/'
expect_found 'a head of another language' 'its head names another language' \
  's/^"Language: de/"Language: nl/'

"$source/ppd/po/check" tlh 2>/dev/null && fail 'a catalogue that is not there passed'

# What the compiler's reader stumbles over, and what it would take for good.
cat >"$work/in.po" <<'PO'
msgid ""
msgstr "Language: xx\n"

msgid "%d Gloss"
msgid_plural "Gloss"
msgstr[0] "plural"
msgstr[1] "plural"

msgctxt "another"
msgid "Gloss"
msgstr "context"

#, fuzzy
msgid "Matte"
msgstr "unsure"

msgid ""
"Print "
"mode"
msgstr ""
"Mo"
"dus"

msgid "a message of a program"
msgstr "message"

#, python-brace-format
msgid "Printer error {number} (class {class}). Check the printer, then print again."
msgstr "{class}/{number}!"

#~ msgid "Fast"
#~ msgstr "gone"
PO
awk -f "$source/ppd/whole-drv.awk" "$source/status/reason_list.def" "$source/ppd/tqr7.drv" \
  >"$work/whole.drv"
got=$(awk -f "$source/ppd/po/drv-texts.awk" -f "$source/ppd/po/for-ppdc.awk" \
  "$work/whole.drv" "$work/in.po")
[ "$(grep -c '^msgid' <<<"$got")" -eq 103 ] || fail "selected is $got"
[[ $got == 'msgid "Print mode"
msgstr "Modus"

msgid "Printer error 2100 (class 0007). Check the printer, then print again."
msgstr "0007/2100!"
'* ]] || fail "selected is $got"

exit $((failures > 0))
