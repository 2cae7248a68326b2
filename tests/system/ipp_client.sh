# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# What a client of IPP without our PPD does: asks a queue what it can, and sends it jobs. Source it
# behind system_test.sh.
# shellcheck disable=SC2154  # which sets work

# Prints as a phone does, in one request; the job's name goes to JOB. Behind queue, file and format come
# attributes of the job in ipptool's words.
ipp_print() {
  local queue=$1 file=$2 format=$3
  shift 3
  cat >"$work/$queue.test" <<TEST
{
  NAME "Print"
  OPERATION Print-Job
  GROUP operation-attributes-tag
  ATTR charset attributes-charset utf-8
  ATTR naturalLanguage attributes-natural-language en
  ATTR uri printer-uri \$uri
  ATTR name requesting-user-name \$user
  ATTR mimeMediaType document-format $format
  GROUP job-attributes-tag
  $(printf 'ATTR %s\n  ' "$@")
  FILE $file
  STATUS successful-ok
  DISPLAY job-id
}
TEST
  run_job_test "$queue"
}

# The same in two requests, as clients do that do not have the document yet.
ipp_create_and_send() {
  local queue=$1 file=$2 format=$3
  shift 3
  cat >"$work/$queue.test" <<TEST
{
  NAME "Create"
  OPERATION Create-Job
  GROUP operation-attributes-tag
  ATTR charset attributes-charset utf-8
  ATTR naturalLanguage attributes-natural-language en
  ATTR uri printer-uri \$uri
  ATTR name requesting-user-name \$user
  GROUP job-attributes-tag
  $(printf 'ATTR %s\n  ' "$@")
  STATUS successful-ok
  EXPECT job-id
}
{
  NAME "Send"
  OPERATION Send-Document
  GROUP operation-attributes-tag
  ATTR charset attributes-charset utf-8
  ATTR naturalLanguage attributes-natural-language en
  ATTR uri printer-uri \$uri
  ATTR integer job-id \$job-id
  ATTR name requesting-user-name \$user
  ATTR mimeMediaType document-format $format
  ATTR boolean last-document true
  FILE $file
  STATUS successful-ok
  DISPLAY job-id
}
TEST
  run_job_test "$queue"
}

run_job_test() {
  local said
  said=$(ipptool -c "$(queue_address "$1")" "$work/$1.test" 2>&1) || fail "ipptool: $said"
  # A line of names, and one of values.
  # shellcheck disable=SC2034  # the tests use it
  JOB=$1-$(tail -n 1 <<<"$said")
}

# The attribute that asks for a medium by dimensions, and by margins (left, top, right, bottom) when they
# are given, in hundredths of a millimetre.
media_col() {
  local margins=''
  [ $# -lt 6 ] || margins="MEMBER integer media-left-margin $3 MEMBER integer media-top-margin $4
    MEMBER integer media-right-margin $5 MEMBER integer media-bottom-margin $6"
  echo "collection media-col { MEMBER collection media-size
    { MEMBER integer x-dimension $1 MEMBER integer y-dimension $2 } $margins }"
}

# All that the queue tells, a line an attribute: name, kind in brackets, equals sign, values.
queue_attributes() {
  ipptool -t -v "$(queue_address "$1")" get-printer-attributes.test | sed 's/^ *//'
}

# The same of a job, by its number.
job_attributes() {
  cat >"$work/$1.test" <<TEST
{
  NAME "Job"
  OPERATION Get-Job-Attributes
  GROUP operation-attributes-tag
  ATTR charset attributes-charset utf-8
  ATTR naturalLanguage attributes-natural-language en
  ATTR uri printer-uri \$uri
  ATTR integer job-id $2
  ATTR name requesting-user-name \$user
  STATUS successful-ok
}
TEST
  ipptool -t -v "$(queue_address "$1")" "$work/$1.test" | sed 's/^ *//'
}

# One attribute's values of those lines on standard input.
values_of() {
  sed -n "s/^$1 ([^)]*) = //p"
}
