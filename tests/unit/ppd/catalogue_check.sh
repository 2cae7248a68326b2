#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# ppd/po/check finds what may be wrong with a catalogue, and ppd/po/for-ppdc.awk gives the PPD compiler
# nothing that it cannot read.
# catalogue_check.sh SOURCE-FOLDER
set -uo pipefail

source=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
ln -s "$source/job" "$source/scripts" "$source/status" "$work"
failures=0
fail() {
  echo "FAILED: $*"
  failures=$((failures + 1))
}

# Breaks the German catalogue by a sed script; leaves what the check says of it in said, and its status.
check_broken() {
  rm -rf "$work/ppd"
  cp -r "$source/ppd" "$work"
  sed -i "$@" "$work/ppd/po/de.po"
  cmp -s "$source/ppd/po/de.po" "$work/ppd/po/de.po" && fail "$what: nothing was broken"
  status=0
  said=$("$work/ppd/po/check" de 2>&1) || status=$?
}

# What the check must refuse, in these words.
expect_refused() {
  local what=$1 words=$2 said status
  shift 2
  check_broken "$@"
  [ "$status" -ne 0 ] || fail "$what: not found"
  [[ $said == *"$words"* ]] || fail "$what: \"$words\" is not in \"$said\""
}

# What the check lists, and nothing else, but does not refuse.
expect_listed() {
  local what=$1 words=$2 said status
  shift 2
  check_broken "$@"
  [ "$status" -eq 0 ] || fail "$what: refused"
  [ "$said" = "$words" ] || fail "$what: \"$said\" is not \"$words\""
}

expect_refused 'a text of the PPD without a translation' \
  'untranslated, in the printer description:
msgid "Gloss"' '/^msgid "Gloss"$/{n;s/".*"/""/}'
expect_refused 'an unsure translation of the PPD' \
  'only-fuzzy, in the printer description:
msgid "Gloss"' 's/^msgid "Gloss"$/#, fuzzy\n&/'
expect_listed "a program's message without a translation" \
  'ppd/po/de.po: untranslated, in English therefore:
msgid "Nothing to do."' '/^msgid "Nothing to do."$/{n;s/".*"/""/}'
expect_listed "an unsure translation of a program's message" \
  'ppd/po/de.po: only-fuzzy, in English therefore:
msgid "Nothing to do."' 's/^msgid "Nothing to do."$/#, fuzzy\n&/'
expect_refused 'a message that is gone' 'left over' '1i#~ msgid "gone"\n#~ msgstr "fort"\n'
expect_refused 'a message that the template does not have' 'does not go with tqr7.pot' \
  's/^msgid "Nothing to do."$/msgid "Nothing at all."/'
expect_refused 'a lost place for a value' 'format specifications' \
  '/^msgid "there is no queue %s"$/{n;s/%s/%d/}'
expect_refused 'a lost word of the PPD' 'msgfmt finds' 's/^msgstr "Druckerfehler {number}\. /msgstr "Fehler. /'
expect_refused '81 bytes' '81 bytes, more than 80' \
  "/^msgid \"Gloss\"\$/{n;s/\".*\"/\"$(printf 'ü%.0s' {1..40})x\"/}"
expect_refused 'a colon' 'a colon' '/^msgid "Gloss"$/{n;s/".*"/"Glanz: viel"/}'
expect_refused 'angle brackets' '< >' '/^msgid "Gloss"$/{n;s/".*"/"Glanz <viel>"/}'
expect_refused 'a translated command' 'commands differ' '/^msgstr/s/resume QUEUE/resume SCHLANGE/'
expect_refused 'a head of another language' 'its head names another language' \
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
"$source/ppd/whole-drv" >"$work/whole.drv"
got=$(awk -f "$source/ppd/po/drv-texts.awk" -f "$source/ppd/po/for-ppdc.awk" \
  "$work/whole.drv" "$work/in.po")
[ "$(grep -c '^msgid' <<<"$got")" -eq 103 ] || fail "selected is $got"
[[ $got == 'msgid "Print mode"
msgstr "Modus"

msgid "Printer error 2100 (class 0007). Check the printer, then print again."
msgstr "0007/2100!"
'* ]] || fail "selected is $got"

exit $((failures > 0))
