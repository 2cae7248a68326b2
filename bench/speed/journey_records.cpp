// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/journey_records.h"

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace bench {

namespace {

constexpr std::int64_t kPerSecond = 1'000'000;
constexpr double kPerMillisecond = 1000.0;

// Microseconds since 1970; 0 is no time.
using Time = std::int64_t;

// A job as the files tell of it.
struct Job {
  int number;
  std::string kind;
  std::string queue;
  Time begin;
  Time end;
};

struct LoggedLine {
  Time time;
  std::string text;
};

std::ifstream opened(const std::string& path) {
  std::ifstream file(path);
  if (!file) {
    throw std::runtime_error(path + ": cannot be read");
  }
  return file;
}

// "1795279287.763998"
Time time_of(const std::string& seconds) {
  const std::size_t point = seconds.find('.');
  if (point == std::string::npos || seconds.size() != point + 7) {
    throw std::runtime_error("\"" + seconds + "\" is no time to the microsecond");
  }
  return std::stoll(seconds.substr(0, point)) * kPerSecond + std::stoll(seconds.substr(point + 1));
}

// "21/Nov/2026:16:41:27.763998 +0000"
Time time_of_log(const std::string& text) {
  std::tm date{};
  const char* rest = ::strptime(text.c_str(), "%d/%b/%Y:%H:%M:%S", &date);
  char* end = nullptr;
  if (rest == nullptr || *rest != '.') {
    throw std::runtime_error("\"" + text + "\" is no time of the log, to the microsecond");
  }
  const Time micro = std::strtol(rest + 1, &end, 10);
  const long zone = std::strtol(end, nullptr, 10);  // hours and minutes, as they are written
  const long offset = (zone / 100) * 3600 + (zone % 100) * 60;
  return (::timegm(&date) - offset) * kPerSecond + micro;
}

std::vector<Job> read_jobs(const std::string& path) {
  std::ifstream file = opened(path);
  std::vector<Job> jobs;
  Job job{};
  std::string begin;
  std::string end;
  while (file >> job.number >> job.kind >> job.queue >> begin >> end) {
    job.begin = time_of(begin);
    job.end = time_of(end);
    jobs.push_back(job);
  }
  return jobs;
}

// The lines of each job: "D [TIME] [Job 2] TEXT".
std::map<int, std::vector<LoggedLine>> read_log(const std::string& path) {
  std::ifstream file = opened(path);
  std::map<int, std::vector<LoggedLine>> lines;
  for (std::string line; std::getline(file, line);) {
    const std::size_t job = line.find("] [Job ");
    if (line.size() < 4 || line[2] != '[' || job == std::string::npos) {
      continue;
    }
    char* text = nullptr;
    const long number = std::strtol(line.c_str() + job + 7, &text, 10);
    lines[static_cast<int>(number)].push_back({time_of_log(line.substr(3, job - 3)), text + 2});
  }
  return lines;
}

// By connection.
std::vector<std::vector<Arrival>> read_timeline(const std::string& path,
                                                std::vector<Time>& begins) {
  std::ifstream file = opened(path);
  std::vector<std::vector<Arrival>> connections;
  std::string seconds;
  std::size_t connection = 0;
  Arrival arrival{};
  while (file >> seconds >> connection >> arrival.bytes && file.ignore() &&
         std::getline(file, arrival.event)) {
    if (connection > begins.size() || connection == 0) {
      throw std::runtime_error(path + ": more connections than jobs");
    }
    connections.resize(connection);
    arrival.time = static_cast<double>(time_of(seconds) - begins[connection - 1]) / kPerMillisecond;
    connections.back().push_back(arrival);
  }
  return connections;
}

// Takes what a line of the log says of a job.
class LogReader {
 public:
  LogReader(Journey& journey, Time begin) : journey_(journey), begin_(begin) {}

  void Take(const LoggedLine& line) {
    const double time = Since(line.time);
    if (line.text.starts_with("Queued on ")) {
      journey_.queued = time;
    } else if (line.text.find("filters for job:") != std::string::npos) {
      journey_.begun = time;
    } else if (line.text.starts_with("Started ")) {
      TakeStart(line.text, time);
    } else if (line.text.starts_with("PID ")) {
      TakeExit(line.text, time);
    } else if (line.text.starts_with("mark ")) {
      TakeMark(line.text);
    } else if (line.text == "Job completed.") {
      journey_.completed = time;
    }
  }

 private:
  double Since(Time time) const { return static_cast<double>(time - begin_) / kPerMillisecond; }

  // "Started filter /PATH/NAME (PID 12)"
  void TakeStart(const std::string& text, double time) {
    const std::size_t end = text.find(" (PID ");
    const std::size_t slash = text.rfind('/', end);
    journey_.programs.push_back({text.substr(slash + 1, end - slash - 1), time, 0.0});
    processes_.push_back(text.substr(end + 6, text.size() - end - 7));
  }

  // "PID 12 (/PATH/NAME) exited with no errors."
  void TakeExit(const std::string& text, double time) {
    const std::string process = text.substr(4, text.find(' ', 4) - 4);
    for (std::size_t i = 0; i < processes_.size(); ++i) {
      if (processes_[i] == process && text.ends_with("exited with no errors.")) {
        journey_.programs[i].exited = time;
      }
    }
  }

  // "mark BEGIN END WAITED CALLS NAME"
  void TakeMark(const std::string& text) {
    std::istringstream words(text.substr(5));
    Time begin = 0;
    Time end = 0;
    double waited = 0.0;
    int calls = 0;
    Mark mark{};
    words >> begin >> end >> waited >> calls >> std::ws;
    std::getline(words, mark.name);
    mark.begin = Since(begin);
    mark.end = Since(end);
    mark.waited = waited / kPerMillisecond;
    journey_.marks.push_back(mark);
  }

  Journey& journey_;
  Time begin_;
  std::vector<std::string> processes_;
};

void check(const Journey& journey, int number) {
  const auto demand = [number](bool there, const std::string& what) {
    if (!there) {
      throw std::runtime_error("job " + std::to_string(number) + ": " + what);
    }
  };
  demand(journey.completed > 0.0, "it was not completed");
  demand(journey.marked == !journey.marks.empty(), "the marks are missing, or should not be there");
  if (journey.marked) {
    demand(journey.queued > 0.0 && journey.begun > 0.0, "the log does not have its beginning");
    demand(journey.programs.size() >= 3, "the log does not have its filters");
    for (const Program& program : journey.programs) {
      demand(program.exited > 0.0, program.name + " did not end well");
    }
  }
  demand(!journey.arrivals.empty() && journey.arrivals.back().event == "closed",
         "it did not come to the printer");
}

// When the jobs of a queue began.
std::vector<Time> begins_of(const std::vector<Job>& jobs, const std::string& queue) {
  std::vector<Time> begins;
  for (const Job& job : jobs) {
    if (job.queue == queue) {
      begins.push_back(job.begin);
    }
  }
  return begins;
}

}  // namespace

double first_byte(const Journey& journey) {
  for (const Arrival& arrival : journey.arrivals) {
    if (arrival.event == "bytes") {
      return arrival.time;
    }
  }
  throw std::runtime_error("a job without a byte");
}

double last_byte(const Journey& journey) {
  double last = first_byte(journey);
  for (const Arrival& arrival : journey.arrivals) {
    last = arrival.event == "bytes" ? arrival.time : last;
  }
  return last;
}

std::vector<Journey> read_journeys(const std::string& folder) {
  const std::vector<Job> jobs = read_jobs(folder + "/jobs");
  std::map<std::string, std::map<int, std::vector<LoggedLine>>> logs;
  std::map<std::string, std::vector<std::vector<Arrival>>> timelines;
  std::map<std::string, std::size_t> printed;
  std::vector<Journey> journeys;
  for (const Job& job : jobs) {
    if (!timelines.contains(job.queue)) {
      std::vector<Time> begins = begins_of(jobs, job.queue);
      logs[job.queue] = read_log(folder + "/" + job.queue + ".log");
      timelines[job.queue] = read_timeline(folder + "/" + job.queue + ".timeline", begins);
    }
    Journey journey;
    journey.kind = job.kind;
    journey.marked = job.queue == "marked";
    journey.lpEnded = static_cast<double>(job.end - job.begin) / kPerMillisecond;
    LogReader reader(journey, job.begin);
    for (const LoggedLine& line : logs[job.queue][job.number]) {
      reader.Take(line);
    }
    const std::size_t connection = printed[job.queue]++;
    if (connection < timelines[job.queue].size()) {
      journey.arrivals = timelines[job.queue][connection];
    }
    check(journey, job.number);
    journeys.push_back(journey);
  }
  return journeys;
}

}  // namespace bench
