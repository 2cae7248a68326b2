# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Shell functions that run a CUPS scheduler of one's own in a temporary folder. Source it.
#
# It is reached by a socket in that folder alone, keeps all it writes there, and neither sees nor
# touches the system's queues. It runs as root (its filters then as lp) and as an ordinary user.
#
#   scheduler_start BUILD            then SCHEDULER_DIR is the folder, and lp, lpstat, cancel, …
#                                    of this shell talk to the private scheduler
#   scheduler_add_queue NAME URI …   a queue with the build's PPD; more words go to lpadmin
#   scheduler_job_state JOB          pending, held, processing, stopped, canceled, aborted, completed
#   scheduler_stop                   ends it with all it started, and removes the folder
#
# Set SCHEDULER_FILTER_PRELOAD to a library to have the printer's two filters, and nothing else, run
# with it, and SCHEDULER_DIRECTIVES to further lines of cupsd.conf.

# The folder of the system's backends and filters.
: "${CUPS_SERVERBIN:=/usr/lib/cups}"

scheduler_write_configuration() {
  local user group system_group
  if [ "$(id -u)" -eq 0 ]; then
    user=lp group=lp system_group=root
  else
    user=$(id -un) group=$(id -gn) system_group=$group
  fi
  cat >"$SCHEDULER_DIR/etc/cups-files.conf" <<CONF
User $user
Group $group
SystemGroup $system_group
LogFileGroup $group
ServerRoot $SCHEDULER_DIR/etc
ServerBin $CUPS_SERVERBIN
DataDir /usr/share/cups
CacheDir $SCHEDULER_DIR/cache
StateDir $SCHEDULER_DIR/run
RequestRoot $SCHEDULER_DIR/spool
TempDir $SCHEDULER_DIR/spool/tmp
AccessLog $SCHEDULER_DIR/log/access_log
ErrorLog $SCHEDULER_DIR/log/error_log
PageLog $SCHEDULER_DIR/log/page_log
PassEnv ASAN_OPTIONS
PassEnv UBSAN_OPTIONS
CONF
  cat >"$SCHEDULER_DIR/etc/cupsd.conf" <<CONF
LogLevel debug
MaxLogSize 0
Listen $SCHEDULER_DIR/run/cups.sock
Browsing No
WebInterface No
IdleExitTimeout 0
DirtyCleanInterval 0
JobKillDelay 10
${SCHEDULER_DIRECTIVES:-}
<Location />
  Order allow,deny
  Allow from 127.0.0.1
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  SubscriptionPrivateAccess all
  SubscriptionPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
CONF
}

# A scheduler that runs as root starts only filters that root alone can change, and the build folder
# may be anyone's: the filters, what lies beside them and a PPD that names them there are copied. The
# scheduler is copied too, because a confined /usr/sbin/cupsd may not write below /tmp.
scheduler_copy_programs() {
  local build=$1 filter="$SCHEDULER_DIR/filter"
  cp "$(PATH=$PATH:/usr/sbin command -v cupsd)" "$SCHEDULER_DIR/cupsd"
  xargs -a "$build/module-files" -I '{}' cp "$build/{}" "$filter/" || return 1
  if [ -n "${SCHEDULER_FILTER_PRELOAD:-}" ]; then
    cp "$SCHEDULER_FILTER_PRELOAD" "$filter/preload.so"
    local name
    for name in rastertoprinter commandtoprinter; do
      mv "$filter/$name" "$filter/$name-proper"
      printf '#!/bin/sh\nLD_PRELOAD=%s exec %s "$@"\n' "$filter/preload.so" \
        "$filter/$name-proper" >"$filter/$name"
    done
  fi
  chmod 755 "$filter"/*
  sed "s|^\(\*cups[PreFilt]*: \"[^ ]* 0 \).*/\([a-z]*\)\"|\1$filter/\2\"|" \
    "$build/tqr7.ppd" >"$SCHEDULER_DIR/tqr7.ppd"
}

# Until the scheduler answers; it takes about 0.1 seconds.
scheduler_wait_until_ready() {
  local tries
  for ((tries = 0; tries < 1000; ++tries)); do
    if lpstat -r 2>/dev/null | grep -q 'is running'; then
      return 0
    fi
    kill -0 "$SCHEDULER_PID" 2>/dev/null || break
    sleep 0.02
  done
  echo "The private scheduler did not start:" >&2
  tail -n 20 "$SCHEDULER_DIR/log/cupsd.out" "$SCHEDULER_DIR/log/error_log" >&2
  return 1
}

scheduler_start() {
  local build=$1
  SCHEDULER_BUILD=$build
  # /tmp whatever TMPDIR says: the path of a socket is at most some 100 characters long.
  SCHEDULER_DIR=$(mktemp -d /tmp/tqr7-scheduler.XXXXXX) || return 1
  # Filters of a scheduler that runs as root run as lp, and must get in.
  chmod 755 "$SCHEDULER_DIR"
  (umask 022 && cd "$SCHEDULER_DIR" &&
    mkdir -p etc/ppd etc/ssl spool/tmp cache run log home filter)
  scheduler_write_configuration
  scheduler_copy_programs "$build" || return 1
  export CUPS_SERVER=$SCHEDULER_DIR/run/cups.sock CUPS_SERVERROOT=$SCHEDULER_DIR/etc
  export HOME=$SCHEDULER_DIR/home LC_ALL=C
  unset LPDEST PRINTER
  "$SCHEDULER_DIR/cupsd" -f -c "$SCHEDULER_DIR/etc/cupsd.conf" \
    -s "$SCHEDULER_DIR/etc/cups-files.conf" >"$SCHEDULER_DIR/log/cupsd.out" 2>&1 &
  SCHEDULER_PID=$!
  scheduler_wait_until_ready
}

scheduler_add_queue() {
  local name=$1 uri=$2
  shift 2
  # lpadmin warns of every PPD that drivers are on their way out.
  PATH=$PATH:/usr/sbin lpadmin -p "$name" -E -v "$uri" -P "$SCHEDULER_DIR/tqr7.ppd" "$@" \
    2> >(grep -v 'deprecated' >&2)
}

scheduler_job_state() {
  "$SCHEDULER_BUILD/job-state" "$1"
}

# The scheduler ends its filters and backends itself, within moments.
scheduler_stop() {
  [ -n "${SCHEDULER_DIR:-}" ] || return 0
  if [ -n "${SCHEDULER_PID:-}" ]; then
    kill "$SCHEDULER_PID" 2>/dev/null
    local tries
    for ((tries = 0; tries < 500; ++tries)); do
      kill -0 "$SCHEDULER_PID" 2>/dev/null || break
      sleep 0.02
    done
    kill -KILL "$SCHEDULER_PID" 2>/dev/null
    wait "$SCHEDULER_PID" 2>/dev/null
  fi
  rm -rf "$SCHEDULER_DIR"
  SCHEDULER_DIR='' SCHEDULER_PID=''
}
