// SPDX-License-Identifier: Apache-2.0
#include "tools/other_words.h"

#include <array>

#include "language/messages.h"

namespace tools {
namespace {

using language::N_;

constexpr const char* kAskPrinter =
    N_("This printer reports its errors as numbers, and not with this word, which another part of "
       "the system has set. See to the printer, and read its display.");
constexpr const char* kAskAdministrator =
    N_("Ask the person who looks after this computer; the scheduler's log, usually "
       "/var/log/cups/error_log, says more.");

constexpr std::array kWords = {
    OtherWord{"none", N_("The queue shows no reason: nothing is known to be wrong."),
              N_("Nothing to do. If nothing prints all the same, see whether a job is held or "
                 "stopped: `tqr7 status` says so.")},
    OtherWord{
        "paused",
        N_("The queue is stopped. Either a person stopped it, or the driver did because the "
           "printer refused a sheet; the log then has a line with the word for it, such as "
           "driver-setting-unmuch."),
        N_("See to the cause, then start the queue: `tqr7 resume QUEUE`, or `cupsenable QUEUE` "
           "when a person stopped it.")},

    // The driver's own words for the answers to its question before each sheet.
    OtherWord{
        "pagesize-inkribbon-unmuch",
        N_("The printer refused the sheet: the paper size and the ink ribbon in the printer do "
           "not go together."),
        N_("Put in the ribbon and paper for the size of the job, or print the job in the size "
           "that is in the printer. Then `tqr7 resume QUEUE`.")},
    OtherWord{"driver-setting-unmuch",
              N_("The printer refused the sheet: it does not take the settings of the job."),
              N_("Print again with other options: the default finish, mode and size first. Then "
                 "`tqr7 resume QUEUE`; give the refused job up with `cancel JOB`.")},
    OtherWord{
        "out-of-range",
        N_("The printer refused the sheet: a value of the job's settings is out of its range."),
        N_("Print again with the default options. Then `tqr7 resume QUEUE`; give the refused job "
           "up with `cancel JOB`.")},
    OtherWord{
        "memory-timeout",
        N_("The printer said that it was busy for more than three minutes, and the driver gave "
           "up."),
        N_("Wait until the printer has finished what it does, or switch it off and on. Then "
           "`tqr7 resume QUEUE`.")},
    OtherWord{
        "protocol-error",
        N_("The printer gave an answer that the driver does not know, or none while it was busy."),
        N_("Check the cable, switch the printer off and on, then `tqr7 resume QUEUE`. If it "
           "happens again, `tqr7 report` gathers what is needed to find out why.")},

    // The scheduler and its backends.
    OtherWord{
        "connecting-to-device", N_("The scheduler is trying to reach the printer."),
        N_("Nothing, for some seconds. If it stays, the printer is off, not connected, or its "
           "address is wrong: `lpstat -v QUEUE` shows the address.")},
    OtherWord{"timed-out", N_("The printer did not answer in time."),
              N_("Check that the printer is on and connected.")},
    OtherWord{"offline", N_("The printer cannot be reached."),
              N_("Check that the printer is on and connected. The job goes on when it is.")},
    OtherWord{"cups-waiting-for-job-completed",
              N_("All of the job is sent, and the scheduler waits for the printer to close the "
                 "connection."),
              N_("Nothing: it ends by itself, after 90 seconds at the latest.")},
    OtherWord{
        "cups-insecure-filter",
        N_("The scheduler does not start the driver's filter: somebody other than root could "
           "change the filter or its folder."),
        N_("Install the driver again, or make root the owner of the filter and its folder, and "
           "let nobody else write to them.")},
    OtherWord{"cups-missing-filter",
              N_("The scheduler does not find a program that the queue needs, often the driver's "
                 "filter."),
              N_("Install the driver again, or create the queue again with the PPD that is beside "
                 "the filter.")},
    OtherWord{"hold-new-jobs", N_("The queue takes jobs, but holds new ones back."),
              N_("A person asked for it; `cupsenable --release QUEUE` lets the jobs go.")},
    OtherWord{"moving-to-paused", N_("The queue is about to stop; the job in print still ends."),
              N_("Wait; then the reason is paused.")},
    OtherWord{"shutdown", N_("The printer is off or being switched off."), N_("Switch it on.")},
    OtherWord{"deactivated", N_("The printer was taken out of service by a person."),
              kAskAdministrator},
    OtherWord{"stopping", N_("The printer is about to stop."),
              N_("Wait; then the reason is paused.")},
    OtherWord{"stopped-partly", N_("Some printers of this queue are stopped, others print."),
              N_("`tqr7 status` shows each of them.")},
    OtherWord{"spool-area-full", N_("The scheduler has no room left for jobs."), kAskAdministrator},
    OtherWord{"other", N_("Something is wrong that has no word of its own."), kAskAdministrator},

    // Common words that this driver does not raise, but which other programs may set on a queue.
    OtherWord{"media-empty", N_("There is no paper left."), kAskPrinter},
    OtherWord{"media-needed", N_("Paper must be put in."), kAskPrinter},
    OtherWord{"media-low", N_("There is little paper left."), kAskPrinter},
    OtherWord{"media-jam", N_("Paper is stuck."), kAskPrinter},
    OtherWord{"input-tray-missing", N_("The paper tray is not in."), kAskPrinter},
    OtherWord{"output-area-full", N_("There is no room left where the prints come out."),
              kAskPrinter},
    OtherWord{"cover-open", N_("A cover is open."), kAskPrinter},
    OtherWord{"door-open", N_("A door is open."), kAskPrinter},
    OtherWord{"interlock-open", N_("A cover or a door is not quite closed."), kAskPrinter},
    OtherWord{"marker-supply-empty", N_("The ribbon is used up."), kAskPrinter},
    OtherWord{"marker-supply-low", N_("There is little ribbon left."), kAskPrinter},
    OtherWord{"marker-waste-full", N_("What collects used ribbon or ink is full."), kAskPrinter},
    OtherWord{"marker-waste-almost-full", N_("What collects used ribbon or ink is nearly full."),
              kAskPrinter},
};

}  // namespace

std::span<const OtherWord> other_words() {
  return kWords;
}

}  // namespace tools
