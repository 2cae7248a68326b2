// SPDX-License-Identifier: Apache-2.0
//
// Queues and jobs as the scheduler was seen to tell them.
#ifndef TQR7_TESTS_UNIT_TOOLS_QUEUE_SAMPLES_H
#define TQR7_TESTS_UNIT_TOOLS_QUEUE_SAMPLES_H

#include "tools/queue.h"

/// A queue that runs, at rest, with a network printer.
inline tools::Queue idle_queue(const char* name) {
  tools::Queue queue;
  queue.name = name;
  queue.makeAndModel = "CORVANTIEL TQR7";
  queue.state = tools::QueueState::Idle;
  queue.reasons = {"none"};
  queue.changedAt = 1000;
  queue.accepting = true;
  queue.deviceUri = "socket://printer:9100";
  queue.errorPolicy = "retry-job";
  return queue;
}

/// A job that the driver gave up because the printer refused its sheet.
inline tools::Job refused_job(int id) {
  tools::Job job;
  job.id = id;
  job.state = tools::JobState::Stopped;
  job.reasons = {"job-completed-with-errors"};
  job.printerMessage = "driver-setting-unmuch 0x0200";
  job.printerReasons = {"paused"};
  job.processingSince = 990;
  job.impressions = 1;
  job.format = "image/jpeg";
  return job;
}

/// A job that the driver gave up because the printer was in error.
inline tools::Job failed_job(int id) {
  tools::Job job = refused_job(id);
  job.printerMessage = "Filter failed";
  job.printerReasons = {"com.corvantiel-error0008_2665"};
  job.impressions = 0;
  return job;
}

/// A job whose photo phototopage has refused.
inline tools::Job broken_photo_job(int id) {
  tools::Job job = refused_job(id);
  job.printerMessage = "The photo cannot be printed: Premature end of JPEG file.";
  job.printerReasons = {"none"};
  job.impressions = 0;
  return job;
}

/// The queue with the refused job 7, as the driver leaves it.
inline tools::Queue refused_queue(const char* name) {
  tools::Queue queue = idle_queue(name);
  queue.state = tools::QueueState::Stopped;
  queue.reasons = {"paused"};
  queue.message = "Waiting for printer to finish.";
  queue.jobs = {refused_job(7)};
  return queue;
}

/// A queue of the policy stop-printer, whose printer could not be reached for job 7.
inline tools::Queue unreachable_queue(const char* name) {
  tools::Queue queue = refused_queue(name);
  queue.errorPolicy = "stop-printer";
  queue.message = "Unable to send raster data to the driver.";
  queue.reasons = {"com.corvantiel-error0004", "paused"};
  tools::Job& job = queue.jobs.front();
  job.state = tools::JobState::Pending;
  job.reasons = {"printer-stopped"};
  job.printerMessage = "The printer is not responding.";
  job.printerReasons = {"com.corvantiel-error0004", "paused"};
  return queue;
}

#endif  // TQR7_TESTS_UNIT_TOOLS_QUEUE_SAMPLES_H
