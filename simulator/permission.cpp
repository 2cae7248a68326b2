// SPDX-License-Identifier: Apache-2.0
#include "simulator/permission.h"

namespace simulator {

// A client that is told of an error, or told nothing, gives the file up.
void Permission::StatusAnswered(const AnswerPlan& answer) {
  fileBegins_ = !answer.Good();
  status_ = answer;
  asked_ = false;
  readiness_ = {};
}

// The next status request follows a sheet, or else the client has given the file up.
void Permission::ReadinessAnswered(const AnswerPlan& answer) {
  fileBegins_ = true;
  asked_ = true;
  readiness_ = answer;
}

}  // namespace simulator
