// SPDX-License-Identifier: Apache-2.0
#include "tools/other_words.h"

#include <array>

namespace tools {
namespace {

constexpr char kAskPrinter[] =
    "This printer's own errors come as numbers, not as this word; it is a common one of printing "
    "that another part of the system has set. See to the printer, and read its display.";
constexpr char kAskAdministrator[] =
    "This needs whoever looks after the machine; the scheduler's log, usually "
    "/var/log/cups/error_log, says more.";

constexpr std::array kWords = {
    OtherWord{
        "none", "No reason stands with the queue: nothing is known to be wrong.",
        "Nothing to do. If nothing prints all the same, see whether a job is held or stopped: "
        "`tqr7 status` tells."},
    OtherWord{"paused",
              "The queue is stopped. Either a person stopped it, or the driver did because the "
              "printer refused a sheet; the log then has a line with the word for it, such as "
              "driver-setting-unmuch.",
              "See to the cause, then start the queue: `tqr7 resume QUEUE`, or `cupsenable QUEUE` "
              "when a person stopped it."},

    // The driver's own words for the answers to its question before each sheet.
    OtherWord{"pagesize-inkribbon-unmuch",
              "The printer refused the sheet: the paper size and the ink ribbon in the printer do "
              "not go together.",
              "Put in the ribbon and paper for the size of the job, or print the job in the size "
              "that is in the printer. Then `tqr7 resume QUEUE`."},
    OtherWord{"driver-setting-unmuch",
              "The printer refused the sheet: it does not take the settings of the job.",
              "Print again with other options: the default finish, mode and size first. Then "
              "`tqr7 resume QUEUE`; give the refused job up with `cancel JOB`."},
    OtherWord{
        "out-of-range",
        "The printer refused the sheet: a value of the job's settings is out of its range.",
        "Print again with the default options. Then `tqr7 resume QUEUE`; give the refused job "
        "up with `cancel JOB`."},
    OtherWord{"memory-timeout",
              "The printer said that it was busy for more than three minutes, and the driver gave "
              "up.",
              "Wait until the printer has finished what it does, or switch it off and on. Then "
              "`tqr7 resume QUEUE`."},
    OtherWord{
        "protocol-error",
        "The printer gave an answer that the driver does not know, or none while it was busy.",
        "Check the cable, switch the printer off and on, then `tqr7 resume QUEUE`. If it "
        "happens again, `tqr7 report` gathers what is needed to find out why."},

    // The scheduler and its backends.
    OtherWord{"connecting-to-device", "The scheduler is trying to reach the printer.",
              "Nothing, for some seconds. If it stays, the printer is off, not connected, or its "
              "address is wrong: `lpstat -v QUEUE` shows the address."},
    OtherWord{"timed-out", "The printer did not answer in time.",
              "Check that the printer is on and connected."},
    OtherWord{"offline", "The printer cannot be reached.",
              "Check that the printer is on and connected. The job goes on when it is."},
    OtherWord{"cups-waiting-for-job-completed",
              "All of the job is sent, and the scheduler waits for the printer to close the "
              "connection.",
              "Nothing: it ends by itself, after 90 seconds at the latest."},
    OtherWord{"cups-insecure-filter",
              "The scheduler does not start the driver's filter: somebody other than root could "
              "change the filter or its folder.",
              "Install the driver again, or make root the owner of the filter and its folder, and "
              "let nobody else write to them."},
    OtherWord{"cups-missing-filter",
              "The scheduler does not find a program that the queue needs, often the driver's "
              "filter.",
              "Install the driver again, or make the queue anew with the PPD that lies beside the "
              "filter."},
    OtherWord{"hold-new-jobs", "The queue takes jobs, but holds new ones back.",
              "A person asked for it; `cupsenable --release QUEUE` lets the jobs go."},
    OtherWord{"moving-to-paused", "The queue is about to stop; the job in print still ends.",
              "Wait; then the word is paused."},
    OtherWord{"shutdown", "The printer is off or being switched off.", "Switch it on."},
    OtherWord{"deactivated", "The printer was taken out of service by a person.",
              kAskAdministrator},
    OtherWord{"stopping", "The printer is about to stop.", "Wait; then the word is paused."},
    OtherWord{"stopped-partly", "Some printers behind this queue stand still, others print.",
              "`tqr7 status` shows each of them."},
    OtherWord{"spool-area-full", "The scheduler has no room left for jobs.", kAskAdministrator},
    OtherWord{"other", "Something is wrong that has no word of its own.", kAskAdministrator},

    // Common words that this driver does not raise, but which other programs may set on a queue.
    OtherWord{"media-empty", "There is no paper left.", kAskPrinter},
    OtherWord{"media-needed", "Paper must be put in.", kAskPrinter},
    OtherWord{"media-low", "There is little paper left.", kAskPrinter},
    OtherWord{"media-jam", "Paper is stuck.", kAskPrinter},
    OtherWord{"input-tray-missing", "The paper tray is not in.", kAskPrinter},
    OtherWord{"output-area-full", "There is no room left where the prints come out.", kAskPrinter},
    OtherWord{"cover-open", "A cover is open.", kAskPrinter},
    OtherWord{"door-open", "A door is open.", kAskPrinter},
    OtherWord{"interlock-open", "A cover or a door is not quite closed.", kAskPrinter},
    OtherWord{"marker-supply-empty", "The ribbon is used up.", kAskPrinter},
    OtherWord{"marker-supply-low", "There is little ribbon left.", kAskPrinter},
    OtherWord{"marker-waste-full", "What collects used ribbon or ink is full.", kAskPrinter},
    OtherWord{"marker-waste-almost-full", "What collects used ribbon or ink is nearly full.",
              kAskPrinter},
};

}  // namespace

std::span<const OtherWord> other_words() {
  return kWords;
}

}  // namespace tools
