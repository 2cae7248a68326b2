// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/decoder/played_exchange.h"

#include <map>
#include <sstream>
#include <stdexcept>

#include "decoder/stream_parser.h"
#include "tests/unit/decoder/event_recording.h"
#include "tests/unit/stream_bytes.h"

namespace {

using decoder::Answer;
using stream::Bytes;
using stream::Finish;

constexpr std::size_t kWaitByte = 10;

class Player {
 public:
  explicit Player(bool timed) : timed_(timed) {}

  void Play(const std::string& word) {
    if (word[0] == '@') {
      now_ += std::chrono::duration_cast<std::chrono::nanoseconds>(
          std::chrono::duration<double>(std::stod(word.substr(1))));
    } else if (word[0] == '=') {
      Set(word.substr(1));
    } else if (word == "sheet") {
      Play("J");
      Play("Z");
    } else {
      parser_.Feed(BytesOf(word[0]), Now());
      if (word.size() > 1) {
        parser_.Answered(AnswerOf(word), Now());
      }
    }
  }

  std::vector<std::string> Errors() {
    parser_.EndOfStream();
    return recording_.errors;
  }

 private:
  decoder::StreamTime Now() const { return timed_ ? decoder::StreamTime(now_) : std::nullopt; }

  void Set(const std::string& what) {
    const std::map<std::string, const stream::Paper*> papers = {
        {"5x15", &stream::paper_5x15()},
        {"10x15", &stream::paper_10x15()},
        {"10x15wb", &stream::paper_10x15_wb()},
        {"9x13", &stream::papers[0]},
        {"two", &stream::paper_5x15x2()}};
    const std::map<std::string, std::pair<std::size_t, std::uint8_t>> bytes = {
        {"fast", {49, 5}}, {"cut", {14, 1}}, {"wait6", {kWaitByte, 6}}, {"rates", {81, 77}}};
    if (what == "matte") {
      finish_ = Finish::Matte;
    } else if (papers.contains(what)) {
      paper_ = papers.at(what);
      finish_ = Finish::Gloss;
      changed_.clear();
    } else {
      changed_.insert(bytes.at(what));
    }
  }

  Bytes Changed(Bytes block) const {
    for (const auto& [offset, value] : changed_) {
      block.at(offset) = value;
    }
    return block;
  }

  Bytes BytesOf(char command) const {
    switch (command) {
      case 'S':
        return stream::status_request();
      case 'Q':
        return Changed(stream::readiness_query(*paper_, finish_));
      case 'J':
        return Changed(stream::job_header(*paper_, finish_));
      case 'Z':
        return stream::join({stream::image_header(*paper_, finish_), Bytes(paper_->imageBytes),
                             Bytes(finish_ == Finish::Matte ? paper_->matteBytes : 0)});
      case 'P': {
        Bytes bytes = stream::print_out();
        bytes.back() = changed_.contains(kWaitByte) ? changed_.at(kWaitByte) : bytes.back();
        return bytes;
      }
      default:
        throw std::invalid_argument(std::string("no command: ") + command);
    }
  }

  static Answer AnswerOf(const std::string& word) {
    const std::map<std::string, Answer> answers = {
        {"S+", {Answer::Meaning::Good, "0x0000"}},
        {"Q+", {Answer::Meaning::Good, "0x0000"}},
        {"S-", {Answer::Meaning::Bad, "0x2665"}},
        {"Q-", {Answer::Meaning::Bad, "0x0200"}},
        {"Q~", {Answer::Meaning::Busy, "0x0100"}},
        {"S?", {Answer::Meaning::Bad, "no answer", false}},
        {"Q?", {Answer::Meaning::Bad, "no answer", false}},
        {"S!", {Answer::Meaning::Bad, "0x2665", false, true}},
        {"Q!", {Answer::Meaning::Good, "0x0000", false, true}}};
    return answers.at(word);
  }

  bool timed_;
  std::chrono::nanoseconds now_{0};
  const stream::Paper* paper_ = &stream::paper_5x15();
  Finish finish_ = Finish::Gloss;
  std::map<std::size_t, std::uint8_t> changed_;
  EventRecording recording_;
  decoder::StreamParser parser_{recording_};
};

}  // namespace

std::vector<std::string> errors_of_exchange(const std::string& words) {
  Player player(words.find('@') != std::string::npos);
  std::istringstream in(words);
  for (std::string word; in >> word;) {
    player.Play(word);
  }
  return player.Errors();
}

std::string times(int count, const std::string& words) {
  std::string all;
  for (int i = 0; i < count; ++i) {
    all += words + " ";
  }
  return all;
}
